list(APPEND TOCCA_UI_QML Underglow/SpatialUnderglowContentView.qml)
list(APPEND TOCCA_UI_SOURCES
    Quick/EdgeLine.cpp
    Quick/GlowLight.cpp
    Underglow/SpatialUnderglowViewModel.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/Quick/EdgeLine.h
    UI/Quick/GlowLight.h
    UI/Underglow/SpatialUnderglowViewModel.h)
