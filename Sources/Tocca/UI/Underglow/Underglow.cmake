list(APPEND TOCCA_UI_QML Underglow/SpatialUnderglowContentView.qml)
list(APPEND TOCCA_UI_SOURCES
    Underglow/SpatialUnderglowViewModel.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/Underglow/SpatialUnderglowViewModel.h)
