list(APPEND TOCCA_UI_UNITS Settings/SettingsViewModel)
list(APPEND TOCCA_UI_HEADERS Settings/StatusViewModel.h)
