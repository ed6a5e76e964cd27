list(APPEND TOCCA_UI_QML
    MenuBar/AcousticModderSection.qml
    MenuBar/AudioControlsSection.qml
    MenuBar/CommunityLibrary.qml
    MenuBar/FooterSection.qml
    MenuBar/HeaderSection.qml
    MenuBar/IconTitleRow.qml
    MenuBar/ImmersionControlsSection.qml
    MenuBar/MenuBarView.qml
    MenuBar/PackDropTarget.qml
    MenuBar/PeripheralAudioSection.qml
    MenuBar/PermissionCard.qml
    MenuBar/PickerRow.qml
    MenuBar/PulsingLogo.qml
    MenuBar/QuickKeyButton.qml
    MenuBar/QuickTestBar.qml
    MenuBar/SmartMuteControlsSection.qml
    MenuBar/SmartMutedCard.qml
    MenuBar/SoundPackRow.qml
    MenuBar/SoundPackSection.qml
    MenuBar/SoundstageStrip.qml
    MenuBar/StudioButton.qml
    MenuBar/TypingPadSection.qml
    MenuBar/VisualFlairSection.qml)
list(APPEND TOCCA_UI_SOURCES
    MenuBar/MenuBarViewModel.cpp
    MenuBar/SoundPackRowsViewModel.cpp)
list(APPEND TOCCA_UI_HEADERS
    UI/MenuBar/MenuBarViewModel.h
    UI/MenuBar/SoundPackRowsViewModel.h)
