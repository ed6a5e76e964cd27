list(APPEND TOCCA_UI_QML
    NotchHUD/NotchHUDContentView.qml
    NotchHUD/SpeedPill.qml)
list(APPEND TOCCA_UI_SOURCES
    NotchHUD/NotchHUDViewModel.cpp
    Quick/CapsulePlate.cpp
    Quick/PixelItem.cpp
    Quick/StemCross.cpp
    Quick/WaveformBars.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/NotchHUD/NotchHUDViewModel.h
    UI/Quick/CapsulePlate.h
    UI/Quick/Light.h
    UI/Quick/PixelItem.h
    UI/Quick/StemCross.h
    UI/Quick/WaveformBars.h)
