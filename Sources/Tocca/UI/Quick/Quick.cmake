list(APPEND TOCCA_UI_UNITS
    Quick/Blend
    Quick/CapsulePlate
    Quick/EdgeLine
    Quick/GlowLight
    Quick/PixelItem
    Quick/QmlView
    Quick/SpringFollow
    Quick/StemCross
    Quick/SwitchStemShape
    Quick/ToccaBrandLogoView
    Quick/WaveformBars)
list(APPEND TOCCA_UI_HEADERS
    Quick/FileUrl.h
    Quick/Light.h
    Quick/RowsModel.h
    Quick/StudioColours.h
    Quick/UiProperty.h)
