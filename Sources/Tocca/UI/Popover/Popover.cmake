list(APPEND TOCCA_UI_QML
    Popover/AcousticModderSection.qml
    Popover/AudioControlsSection.qml
    Popover/FooterSection.qml
    Popover/HeaderSection.qml
    Popover/IconTitleRow.qml
    Popover/ImmersionControlsSection.qml
    Popover/MenuBarView.qml
    Popover/PeripheralAudioSection.qml
    Popover/PermissionCard.qml
    Popover/PickerRow.qml
    Popover/PulsingLogo.qml
    Popover/QuickKeyButton.qml
    Popover/QuickTestBar.qml
    Popover/SmartMuteControlsSection.qml
    Popover/SmartMutedCard.qml
    Popover/SoundstageStrip.qml
    Popover/StudioButton.qml
    Popover/TypingPadSection.qml
    Popover/VisualFlairSection.qml
    Popover/Packs/CommunityLibrary.qml
    Popover/Packs/ImportProgress.qml
    Popover/Packs/PackDropTarget.qml
    Popover/Packs/SoundPackRow.qml
    Popover/Packs/SoundPackSection.qml)
list(APPEND TOCCA_UI_UNITS Popover/MenuBarViewModel)
