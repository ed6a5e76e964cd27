list(APPEND TOCCA_UI_SOURCES
    Quick/CapsulePlate.cpp
    Quick/EdgeLine.cpp
    Quick/GlowLight.cpp
    Quick/PixelItem.cpp
    Quick/QmlView.cpp
    Quick/SpringFollow.cpp
    Quick/StemCross.cpp
    Quick/SwitchStemShape.cpp
    Quick/ToccaBrandLogoView.cpp
    Quick/WaveformBars.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/Quick/CapsulePlate.h
    UI/Quick/EdgeLine.h
    UI/Quick/GlowLight.h
    UI/Quick/Light.h
    UI/Quick/PixelItem.h
    UI/Quick/QmlView.h
    UI/Quick/SpringFollow.h
    UI/Quick/StemCross.h
    UI/Quick/SwitchStemShape.h
    UI/Quick/ToccaBrandLogoView.h
    UI/Quick/UiProperty.h
    UI/Quick/WaveformBars.h)
