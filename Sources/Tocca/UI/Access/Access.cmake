list(APPEND TOCCA_UI_UNITS
    Access/Announcement
    Access/Clipboard
    Access/FocusKeeper
    Access/LoneAltKey)
