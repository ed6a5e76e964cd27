list(APPEND TOCCA_UI_QML
    Controls/Badge.qml
    Controls/ButtonFace.qml
    Controls/ButtonGround.qml
    Controls/CapitalLabel.qml
    Controls/Card.qml
    Controls/CheckToggle.qml
    Controls/ClearButton.qml
    Controls/Divider.qml
    Controls/FieldGround.qml
    Controls/FocusRing.qml
    Controls/Label.qml
    Controls/MenuEntry.qml
    Controls/MenuPicker.qml
    Controls/PlainButton.qml
    Controls/PopupMenu.qml
    Controls/PopupMenuSheet.qml
    Controls/Pressable.qml
    Controls/PushButton.qml
    Controls/ScrollArea.qml
    Controls/ScrollBar.qml
    Controls/Section.qml
    Controls/Segment.qml
    Controls/SegmentedPicker.qml
    Controls/Slider.qml
    Controls/SliderDrawing.qml
    Controls/SwitchDrawing.qml
    Controls/TextEntry.qml
    Controls/TitleAndLine.qml
    Controls/Toggle.qml
    Controls/ToggleRow.qml
    Controls/ToolTip.qml)
list(APPEND TOCCA_UI_SOURCES
    Controls/SwitchStemShape.cpp
    Controls/ToccaBrandLogoView.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/Controls/SwitchStemShape.h
    UI/Controls/ToccaBrandLogoView.h)
