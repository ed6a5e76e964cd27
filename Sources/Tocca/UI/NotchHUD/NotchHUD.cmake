list(APPEND TOCCA_UI_QML
    NotchHUD/NotchHUDContentView.qml
    NotchHUD/SpeedPill.qml)
list(APPEND TOCCA_UI_SOURCES
    NotchHUD/NotchHUDViewModel.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/NotchHUD/NotchHUDViewModel.h)
