find_package(PkgConfig REQUIRED)
pkg_check_modules(TOCCA_XCB REQUIRED IMPORTED_TARGET xcb xcb-res xcb-shape xcb-xfixes xcb-xinput xcb-xkb)

# What the X server tells: keys, windows in front, selections; without Qt.
app_module(tocca_linux_x11
    SOURCES
        Platform/Linux/X11/DesktopWatch.cpp
        Platform/Linux/X11/FrontWindow.cpp
        Platform/Linux/X11/PromptWatch.cpp
        Platform/Linux/X11/SecretPrompts.cpp
        Platform/Linux/X11/SelectionWatch.cpp
        Platform/Linux/X11/WindowFacts.cpp
        Platform/Linux/X11/WindowRequests.cpp
        Platform/Linux/X11/XQuestions.cpp
        Platform/Linux/X11/Input/KeyRoles.cpp
        Platform/Linux/X11/Input/KeyboardState.cpp
        Platform/Linux/X11/Input/X11TrustQuery.cpp
        Platform/Linux/X11/Input/XInputCapture.cpp
        Platform/Linux/X11/Input/XInputConnection.cpp
        Platform/Linux/X11/Input/XInputEventTaps.cpp
    HEADERS
        Platform/Linux/Keys/KeyMap.h
        Platform/Linux/X11/DesktopWatch.h
        Platform/Linux/X11/FrontWindow.h
        Platform/Linux/X11/PromptWatch.h
        Platform/Linux/X11/SecretPrompts.h
        Platform/Linux/X11/SelectionWatch.h
        Platform/Linux/X11/WindowFacts.h
        Platform/Linux/X11/WindowRequests.h
        Platform/Linux/X11/XQuestions.h
        Platform/Linux/X11/XReply.h
        Platform/Linux/X11/Input/KeyRoles.h
        Platform/Linux/X11/Input/KeyboardState.h
        Platform/Linux/X11/Input/ServerTime.h
        Platform/Linux/X11/Input/X11TrustQuery.h
        Platform/Linux/X11/Input/XInputCapture.h
        Platform/Linux/X11/Input/XInputConnection.h
        Platform/Linux/X11/Input/XInputEventTaps.h
        Platform/Linux/X11/Input/Xkb.h
    DEPENDS tocca_linux_system PkgConfig::TOCCA_XCB)

# The tests link to what Qt's resources bring along, from another directory.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Qml Quick)

# The whole desktop on Qt's event loop.
app_module(tocca_linux_desktop
    SOURCES
        Platform/Linux/LinuxHost.cpp
        Platform/Linux/Freedesktop/ApplicationService.cpp
        Platform/Linux/Freedesktop/DesktopNotice.cpp
        Platform/Linux/Freedesktop/FolderPortal.cpp
        Platform/Linux/Freedesktop/LinuxWorkspace.cpp
        Platform/Linux/Freedesktop/LoginSessionWatch.cpp
        Platform/Linux/Freedesktop/MotionPreference.cpp
        Platform/Linux/Freedesktop/RealtimeKit.cpp
        Platform/Linux/Freedesktop/ScreenSaverWatch.cpp
        Platform/Linux/Freedesktop/SessionLock.cpp
        Platform/Linux/Qt/ApplicationIcon.cpp
        Platform/Linux/Qt/DisplayChoice.cpp
        Platform/Linux/Qt/LinuxApplication.cpp
        Platform/Linux/Qt/LinuxLocalMonitors.cpp
        Platform/Linux/Qt/LinuxScreens.cpp
        Platform/Linux/Qt/LocalKeys.cpp
        Platform/Linux/Qt/QtLoop.cpp
        Platform/Linux/Qt/RendererChoice.cpp
        Platform/Linux/Qt/TerminationSignals.cpp
        Platform/Linux/Qt/XDesktop.cpp
        Platform/Linux/Qt/Menu/KeyMatch.cpp
        Platform/Linux/Qt/Menu/LinuxMainMenu.cpp
        Platform/Linux/Qt/Menu/MenuExport.cpp
        Platform/Linux/Qt/Menu/StandardActions.cpp
        Platform/Linux/Qt/Windows/AboutWindow.cpp
        Platform/Linux/Qt/Windows/ContentWindow.cpp
        Platform/Linux/Qt/Windows/FolderDialog.cpp
        Platform/Linux/Qt/Windows/LinuxOpenPanels.cpp
        Platform/Linux/Qt/Windows/LinuxPanels.cpp
        Platform/Linux/Qt/Windows/LinuxPopovers.cpp
        Platform/Linux/Qt/Windows/LinuxWindows.cpp
        Platform/Linux/Qt/Windows/OwnWindows.cpp
        Platform/Linux/Qt/Windows/PopoverWindow.cpp
        Platform/Linux/Qt/Windows/WindowActivation.cpp
        Platform/Linux/Tray/DBusMenu.cpp
        Platform/Linux/Tray/DBusMenuTypes.cpp
        Platform/Linux/Tray/EmbeddedIcon.cpp
        Platform/Linux/Tray/IconPainting.cpp
        Platform/Linux/Tray/LinuxStatusBar.cpp
        Platform/Linux/Tray/PopupMenu.cpp
        Platform/Linux/Tray/StatusNotifierItem.cpp
        Platform/Linux/Tray/StatusNotifierTypes.cpp
        Platform/Linux/Tray/StatusNotifierWatch.cpp
    HEADERS
        Platform/Linux/LinuxHost.h
        Platform/Linux/Freedesktop/ApplicationService.h
        Platform/Linux/Freedesktop/DesktopNotice.h
        Platform/Linux/Freedesktop/FolderPortal.h
        Platform/Linux/Freedesktop/LinuxWorkspace.h
        Platform/Linux/Freedesktop/LoginSessionWatch.h
        Platform/Linux/Freedesktop/MotionPreference.h
        Platform/Linux/Freedesktop/RealtimeKit.h
        Platform/Linux/Freedesktop/ScreenSaverWatch.h
        Platform/Linux/Freedesktop/SessionLock.h
        Platform/Linux/Qt/ApplicationIcon.h
        Platform/Linux/Qt/DisplayChoice.h
        Platform/Linux/Qt/Later.h
        Platform/Linux/Qt/LinuxApplication.h
        Platform/Linux/Qt/LinuxLocalMonitors.h
        Platform/Linux/Qt/LinuxScreens.h
        Platform/Linux/Qt/LocalKeys.h
        Platform/Linux/Qt/QtLoop.h
        Platform/Linux/Qt/RendererChoice.h
        Platform/Linux/Qt/TerminationSignals.h
        Platform/Linux/Qt/XDesktop.h
        Platform/Linux/Qt/Menu/KeyMatch.h
        Platform/Linux/Qt/Menu/LinuxMainMenu.h
        Platform/Linux/Qt/Menu/MenuExport.h
        Platform/Linux/Qt/Menu/StandardActions.h
        Platform/Linux/Qt/Windows/AboutWindow.h
        Platform/Linux/Qt/Windows/ContentWindow.h
        Platform/Linux/Qt/Windows/FolderDialog.h
        Platform/Linux/Qt/Windows/LinuxOpenPanels.h
        Platform/Linux/Qt/Windows/LinuxPanels.h
        Platform/Linux/Qt/Windows/LinuxPopovers.h
        Platform/Linux/Qt/Windows/LinuxWindows.h
        Platform/Linux/Qt/Windows/OwnWindows.h
        Platform/Linux/Qt/Windows/PopoverWindow.h
        Platform/Linux/Qt/Windows/QuickView.h
        Platform/Linux/Qt/Windows/WindowActivation.h
        Platform/Linux/Tray/DBusMenu.h
        Platform/Linux/Tray/DBusMenuTypes.h
        Platform/Linux/Tray/EmbeddedIcon.h
        Platform/Linux/Tray/IconPainting.h
        Platform/Linux/Tray/LinuxStatusBar.h
        Platform/Linux/Tray/MenuNode.h
        Platform/Linux/Tray/PopupMenu.h
        Platform/Linux/Tray/StatusNotifierItem.h
        Platform/Linux/Tray/StatusNotifierTypes.h
        Platform/Linux/Tray/StatusNotifierWatch.h
    DEPENDS tocca_linux_audio tocca_linux_x11 Qt6::Core Qt6::DBus Qt6::Gui Qt6::Qml Qt6::Quick)
# The compiler's own macros would make a number of the namespace `linux`.
set_target_properties(tocca_linux_desktop PROPERTIES AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF)
target_compile_definitions(tocca_linux_desktop
    PUBLIC QT_NO_KEYWORDS
    PRIVATE TOCCA_VERSION="${PROJECT_VERSION}")
qt_add_resources(tocca_linux_desktop tocca_desktop_resources
    PREFIX /org.tocca
    BASE Platform/Linux/Qt/Windows
    FILES Platform/Linux/Qt/Windows/FolderDialog.qml)
qt_add_resources(tocca_linux_desktop tocca_desktop_icons
    PREFIX /org.tocca
    BASE Resources/Desktop
    FILES Resources/Desktop/org.tocca.Tocca.svg)

include(GNUInstallDirs)
set(TOCCA_DESKTOP_FILES ${PROJECT_SOURCE_DIR}/Sources/Tocca/Resources/Desktop)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca-symbolic.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/symbolic/apps)
