find_package(PkgConfig REQUIRED)
pkg_check_modules(TOCCA_XCB REQUIRED IMPORTED_TARGET xcb xcb-res xcb-shape xcb-xfixes xcb-xinput xcb-xkb)

# What hears the session's keys on X11; knows no toolkit.
app_module(tocca_linux_capture
    SOURCES
        Platform/Linux/X11/DesktopWatch.cpp
        Platform/Linux/X11/EmbeddedIcon.cpp
        Platform/Linux/X11/FrontWindow.cpp
        Platform/Linux/X11/KeyRoles.cpp
        Platform/Linux/X11/KeyboardState.cpp
        Platform/Linux/X11/PromptWatch.cpp
        Platform/Linux/X11/SecretPrompts.cpp
        Platform/Linux/X11/SelectionWatch.cpp
        Platform/Linux/X11/WaylandSession.cpp
        Platform/Linux/X11/WindowFacts.cpp
        Platform/Linux/X11/WindowRequests.cpp
        Platform/Linux/X11/X11TrustQuery.cpp
        Platform/Linux/X11/XInputCapture.cpp
        Platform/Linux/X11/XInputConnection.cpp
        Platform/Linux/X11/XInputEventTaps.cpp
        Platform/Linux/X11/XQuestions.cpp
    HEADERS
        Platform/Linux/X11/DesktopWatch.h
        Platform/Linux/X11/EmbeddedIcon.h
        Platform/Linux/X11/FrontWindow.h
        Platform/Linux/X11/KeyMap.h
        Platform/Linux/X11/KeyRoles.h
        Platform/Linux/X11/KeyboardState.h
        Platform/Linux/X11/PromptWatch.h
        Platform/Linux/X11/SecretPrompts.h
        Platform/Linux/X11/SecureInput.h
        Platform/Linux/X11/SelectionWatch.h
        Platform/Linux/X11/ServerTime.h
        Platform/Linux/X11/WaylandSession.h
        Platform/Linux/X11/WindowFacts.h
        Platform/Linux/X11/WindowRequests.h
        Platform/Linux/X11/X11TrustQuery.h
        Platform/Linux/X11/XInputCapture.h
        Platform/Linux/X11/XInputConnection.h
        Platform/Linux/X11/XInputEventTaps.h
        Platform/Linux/X11/XQuestions.h
        Platform/Linux/X11/XReply.h
        Platform/Linux/X11/Xkb.h
    DEPENDS tocca_linux_system PkgConfig::TOCCA_XCB)

# The tests link to what the toolkit's resources bring along, from another directory.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Qml Quick)

# The whole desktop on the toolkit's event loop.
app_module(tocca_linux_desktop
    SOURCES
        Platform/Linux/LinuxHost.cpp
        Platform/Linux/Toolkit/AboutWindow.cpp
        Platform/Linux/Toolkit/ApplicationIcon.cpp
        Platform/Linux/Toolkit/ApplicationService.cpp
        Platform/Linux/Toolkit/ContentWindow.cpp
        Platform/Linux/Toolkit/DBusMenu.cpp
        Platform/Linux/Toolkit/DBusMenuTypes.cpp
        Platform/Linux/Toolkit/DesktopNotice.cpp
        Platform/Linux/Toolkit/DisplayChoice.cpp
        Platform/Linux/Toolkit/FolderDialog.cpp
        Platform/Linux/Toolkit/FolderPortal.cpp
        Platform/Linux/Toolkit/IconPainting.cpp
        Platform/Linux/Toolkit/KeyMatch.cpp
        Platform/Linux/Toolkit/LinuxApplication.cpp
        Platform/Linux/Toolkit/LinuxMainMenu.cpp
        Platform/Linux/Toolkit/LinuxOpenPanels.cpp
        Platform/Linux/Toolkit/LinuxPanels.cpp
        Platform/Linux/Toolkit/LinuxPopovers.cpp
        Platform/Linux/Toolkit/LinuxScreens.cpp
        Platform/Linux/Toolkit/LinuxStatusBar.cpp
        Platform/Linux/Toolkit/LinuxWindows.cpp
        Platform/Linux/Toolkit/LinuxWorkspace.cpp
        Platform/Linux/Toolkit/LocalKeys.cpp
        Platform/Linux/Toolkit/LoginSessionWatch.cpp
        Platform/Linux/Toolkit/MenuExport.cpp
        Platform/Linux/Toolkit/MotionPreference.cpp
        Platform/Linux/Toolkit/OwnWindows.cpp
        Platform/Linux/Toolkit/PopoverWindow.cpp
        Platform/Linux/Toolkit/PopupMenu.cpp
        Platform/Linux/Toolkit/RealtimeKit.cpp
        Platform/Linux/Toolkit/RendererChoice.cpp
        Platform/Linux/Toolkit/ScreenSaverWatch.cpp
        Platform/Linux/Toolkit/SessionLock.cpp
        Platform/Linux/Toolkit/StandardActions.cpp
        Platform/Linux/Toolkit/StatusNotifierItem.cpp
        Platform/Linux/Toolkit/StatusNotifierTypes.cpp
        Platform/Linux/Toolkit/StatusNotifierWatch.cpp
        Platform/Linux/Toolkit/TerminationSignals.cpp
        Platform/Linux/Toolkit/ToolkitLoop.cpp
        Platform/Linux/Toolkit/WindowActivation.cpp
        Platform/Linux/Toolkit/XDesktop.cpp
    HEADERS
        Platform/Linux/LinuxHost.h
        Platform/Linux/Toolkit/AboutWindow.h
        Platform/Linux/Toolkit/ApplicationIcon.h
        Platform/Linux/Toolkit/ApplicationService.h
        Platform/Linux/Toolkit/ContentWindow.h
        Platform/Linux/Toolkit/DBusMenu.h
        Platform/Linux/Toolkit/DBusMenuTypes.h
        Platform/Linux/Toolkit/DesktopNotice.h
        Platform/Linux/Toolkit/DisplayChoice.h
        Platform/Linux/Toolkit/FolderDialog.h
        Platform/Linux/Toolkit/FolderPortal.h
        Platform/Linux/Toolkit/IconPainting.h
        Platform/Linux/Toolkit/KeyMatch.h
        Platform/Linux/Toolkit/Later.h
        Platform/Linux/Toolkit/LinuxApplication.h
        Platform/Linux/Toolkit/LinuxMainMenu.h
        Platform/Linux/Toolkit/LinuxOpenPanels.h
        Platform/Linux/Toolkit/LinuxPanels.h
        Platform/Linux/Toolkit/LinuxPopovers.h
        Platform/Linux/Toolkit/LinuxScreens.h
        Platform/Linux/Toolkit/LinuxStatusBar.h
        Platform/Linux/Toolkit/LinuxWindows.h
        Platform/Linux/Toolkit/LinuxWorkspace.h
        Platform/Linux/Toolkit/LocalKeys.h
        Platform/Linux/Toolkit/LoginSessionWatch.h
        Platform/Linux/Toolkit/MenuExport.h
        Platform/Linux/Toolkit/MenuNode.h
        Platform/Linux/Toolkit/MotionPreference.h
        Platform/Linux/Toolkit/OwnWindows.h
        Platform/Linux/Toolkit/PopoverWindow.h
        Platform/Linux/Toolkit/PopupMenu.h
        Platform/Linux/Toolkit/QuickView.h
        Platform/Linux/Toolkit/RealtimeKit.h
        Platform/Linux/Toolkit/RendererChoice.h
        Platform/Linux/Toolkit/ScreenSaverWatch.h
        Platform/Linux/Toolkit/SecureInputReasons.h
        Platform/Linux/Toolkit/SessionLock.h
        Platform/Linux/Toolkit/StandardActions.h
        Platform/Linux/Toolkit/StatusNotifierItem.h
        Platform/Linux/Toolkit/StatusNotifierTypes.h
        Platform/Linux/Toolkit/StatusNotifierWatch.h
        Platform/Linux/Toolkit/TerminationSignals.h
        Platform/Linux/Toolkit/ToolkitLoop.h
        Platform/Linux/Toolkit/WindowActivation.h
        Platform/Linux/Toolkit/XDesktop.h
    DEPENDS tocca_linux_audio tocca_linux_capture Qt6::Core Qt6::DBus Qt6::Gui Qt6::Qml Qt6::Quick)
# The compiler's own macros would make a number of the namespace `linux`.
set_target_properties(tocca_linux_desktop PROPERTIES AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF)
target_compile_definitions(tocca_linux_desktop
    PUBLIC QT_NO_KEYWORDS
    PRIVATE TOCCA_VERSION="${PROJECT_VERSION}")
qt_add_resources(tocca_linux_desktop tocca_desktop_resources
    PREFIX /org.tocca
    BASE Platform/Linux/Toolkit
    FILES Platform/Linux/Toolkit/FolderDialog.qml)
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
