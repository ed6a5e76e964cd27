find_package(PkgConfig REQUIRED)
pkg_check_modules(TOCCA_XCB REQUIRED IMPORTED_TARGET xcb xcb-randr xcb-res xcb-xfixes xcb-xinput xcb-xkb)

# What the X server tells: keys, windows in front, selections; without Qt.
app_module(tocca_linux_x11
    UNITS
        Platform/Linux/X11/ButtonWatch
        Platform/Linux/X11/DesktopScale
        Platform/Linux/X11/DesktopWatch
        Platform/Linux/X11/FrontWindow
        Platform/Linux/X11/PromptWatch
        Platform/Linux/X11/SecretPrompts
        Platform/Linux/X11/SelectionWatch
        Platform/Linux/X11/StartupNotice
        Platform/Linux/X11/WindowFacts
        Platform/Linux/X11/WindowRequests
        Platform/Linux/X11/XConnection
        Platform/Linux/X11/XQuestions
        Platform/Linux/X11/Input/KeyRoles
        Platform/Linux/X11/Input/KeyboardState
        Platform/Linux/X11/Input/X11TrustQuery
        Platform/Linux/X11/Input/XInputCapture
        Platform/Linux/X11/Input/XInputConnection
        Platform/Linux/X11/Input/XInputEventTaps
    HEADERS
        Platform/Linux/Keys/KeyMap.h
        Platform/Linux/X11/XReply.h
        Platform/Linux/X11/Input/ServerTime.h
        Platform/Linux/X11/Input/Xkb.h
    DEPENDS tocca_linux_system PkgConfig::TOCCA_XCB)

# The tests link to what Qt's resources bring along, from another directory.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Qml Quick Svg)

# The whole desktop on Qt's event loop.
app_module(tocca_linux_desktop
    UNITS
        Platform/Linux/LinuxHost
        Platform/Linux/Freedesktop/ApplicationService
        Platform/Linux/Freedesktop/DesktopNotice
        Platform/Linux/Freedesktop/FolderPortal
        Platform/Linux/Freedesktop/LinuxWorkspace
        Platform/Linux/Freedesktop/LoginSessionWatch
        Platform/Linux/Freedesktop/MotionPreference
        Platform/Linux/Freedesktop/RealtimeKit
        Platform/Linux/Freedesktop/ScreenSaverWatch
        Platform/Linux/Freedesktop/SessionLock
        Platform/Linux/Freedesktop/ShellPrompt
        Platform/Linux/Qt/ApplicationIcon
        Platform/Linux/Qt/DisplayChoice
        Platform/Linux/Qt/LateScreenReaders
        Platform/Linux/Qt/LinuxApplication
        Platform/Linux/Qt/LinuxScreens
        Platform/Linux/Qt/LocalKeys
        Platform/Linux/Qt/QtLoop
        Platform/Linux/Qt/RendererChoice
        Platform/Linux/Qt/TerminationSignals
        Platform/Linux/Qt/XDesktop
        Platform/Linux/Qt/Menu/KeyMatch
        Platform/Linux/Qt/Menu/LinuxMainMenu
        Platform/Linux/Qt/Menu/MenuExport
        Platform/Linux/Qt/Menu/StandardActions
        Platform/Linux/Qt/Windows/AboutWindow
        Platform/Linux/Qt/Windows/ContentWindow
        Platform/Linux/Qt/Windows/FolderDialog
        Platform/Linux/Qt/Windows/LinuxOpenPanels
        Platform/Linux/Qt/Windows/LinuxPanels
        Platform/Linux/Qt/Windows/LinuxPopovers
        Platform/Linux/Qt/Windows/LinuxWindows
        Platform/Linux/Qt/Windows/OwnWindows
        Platform/Linux/Qt/Windows/PopoverWindow
        Platform/Linux/Qt/Windows/NoticeWindow
        Platform/Linux/Qt/Windows/WindowActivation
        Platform/Linux/Tray/DBusMenu
        Platform/Linux/Tray/DBusMenuTypes
        Platform/Linux/Tray/EmbeddedIcon
        Platform/Linux/Tray/IconPainting
        Platform/Linux/Tray/LinuxStatusBar
        Platform/Linux/Tray/PopupMenu
        Platform/Linux/Tray/StatusNotifierItem
        Platform/Linux/Tray/StatusNotifierTypes
        Platform/Linux/Tray/StatusNotifierWatch
    HEADERS
        Platform/Linux/Qt/LinuxLocalMonitors.h
        Platform/Linux/Freedesktop/DBusReply.h
        Platform/Linux/Qt/Windows/QuickView.h
        Platform/Linux/Tray/MenuNode.h
    DEPENDS tocca_linux_audio tocca_linux_x11 tocca_player Qt6::Core Qt6::DBus Qt6::Gui Qt6::Qml Qt6::Quick
    PRIVATE_DEPENDS Qt6::Svg)
app_precompile(tocca_linux_desktop
    <functional> <memory> <optional> <string> <vector>
    <QDBusConnection> <QDBusPendingCallWatcher> <QGuiApplication> <QObject> <QQuickWindow> <QTimer>)
# The compiler's own macros would make a number of the namespace `linux`. Each source may call the bus name, path and interface that it
# speaks to by the same words.
set_target_properties(tocca_linux_desktop PROPERTIES UNITY_BUILD OFF AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF)
target_compile_definitions(tocca_linux_desktop
    PUBLIC QT_NO_KEYWORDS
    PRIVATE TOCCA_VERSION="${PROJECT_VERSION}")
qt_add_resources(tocca_linux_desktop tocca_desktop_resources
    PREFIX /org.tocca
    BASE Platform/Linux/Qt/Windows
    FILES
        Platform/Linux/Qt/Windows/AboutWindow.qml
        Platform/Linux/Qt/Windows/FolderDialog.qml
        Platform/Linux/Qt/Windows/NoticeWindow.qml)
qt_add_resources(tocca_linux_desktop tocca_desktop_icons
    PREFIX /org.tocca
    BASE Resources/Desktop
    FILES Resources/Desktop/org.tocca.Tocca.svg)

include(GNUInstallDirs)
set(TOCCA_DESKTOP_FILES ${PROJECT_SOURCE_DIR}/Sources/Tocca/Resources/Desktop)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
# Where the program is, only the installation knows.
install(CODE "set(CMAKE_INSTALL_BINDIR \"${CMAKE_INSTALL_BINDIR}\")
    configure_file(\"${TOCCA_DESKTOP_FILES}/org.tocca.Tocca.service.in\" \"${PROJECT_BINARY_DIR}/org.tocca.Tocca.service\" @ONLY)")
install(FILES ${PROJECT_BINARY_DIR}/org.tocca.Tocca.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${TOCCA_DESKTOP_FILES}/org.tocca.Tocca-symbolic.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/symbolic/apps)
