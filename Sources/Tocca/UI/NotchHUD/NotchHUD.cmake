list(APPEND TOCCA_UI_QML
    NotchHUD/NotchHUDContentView.qml
    NotchHUD/SpeedPill.qml)
list(APPEND TOCCA_UI_UNITS NotchHUD/NotchHUDViewModel)
