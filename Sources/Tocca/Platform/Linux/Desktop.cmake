find_package(PkgConfig REQUIRED)
pkg_check_modules(TOCCA_XCB REQUIRED IMPORTED_TARGET xcb xcb-res xcb-xinput xcb-xkb)

# What hears the session's keys on X11; knows no toolkit.
app_module(tocca_linux_capture
    SOURCES
        Platform/Linux/X11/DesktopWatch.cpp
        Platform/Linux/X11/FrontWindow.cpp
        Platform/Linux/X11/KeyRoles.cpp
        Platform/Linux/X11/KeyboardState.cpp
        Platform/Linux/X11/PromptWatch.cpp
        Platform/Linux/X11/SecretPrompts.cpp
        Platform/Linux/X11/WaylandSession.cpp
        Platform/Linux/X11/WindowFacts.cpp
        Platform/Linux/X11/X11TrustQuery.cpp
        Platform/Linux/X11/XInputCapture.cpp
        Platform/Linux/X11/XInputConnection.cpp
        Platform/Linux/X11/XInputEventTaps.cpp
        Platform/Linux/X11/XQuestions.cpp
    HEADERS
        Platform/Linux/X11/DesktopWatch.h
        Platform/Linux/X11/FrontWindow.h
        Platform/Linux/X11/KeyMap.h
        Platform/Linux/X11/KeyRoles.h
        Platform/Linux/X11/KeyboardState.h
        Platform/Linux/X11/PromptWatch.h
        Platform/Linux/X11/SecretPrompts.h
        Platform/Linux/X11/SecureInput.h
        Platform/Linux/X11/ServerTime.h
        Platform/Linux/X11/WaylandSession.h
        Platform/Linux/X11/WindowFacts.h
        Platform/Linux/X11/X11TrustQuery.h
        Platform/Linux/X11/XInputCapture.h
        Platform/Linux/X11/XInputConnection.h
        Platform/Linux/X11/XInputEventTaps.h
        Platform/Linux/X11/XQuestions.h
        Platform/Linux/X11/XReply.h
        Platform/Linux/X11/Xkb.h
    DEPENDS tocca_linux_system PkgConfig::TOCCA_XCB)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus)

# The whole desktop on the toolkit's event loop.
app_module(tocca_linux_desktop
    SOURCES
        Platform/Linux/LinuxHost.cpp
        Platform/Linux/Toolkit/LinuxWorkspace.cpp
        Platform/Linux/Toolkit/LoginSessionWatch.cpp
        Platform/Linux/Toolkit/RealtimeKit.cpp
        Platform/Linux/Toolkit/ScreenSaverWatch.cpp
        Platform/Linux/Toolkit/SessionLock.cpp
        Platform/Linux/Toolkit/TerminationSignals.cpp
        Platform/Linux/Toolkit/ToolkitLoop.cpp
    HEADERS
        Platform/Linux/LinuxHost.h
        Platform/Linux/Toolkit/LinuxWorkspace.h
        Platform/Linux/Toolkit/LoginSessionWatch.h
        Platform/Linux/Toolkit/RealtimeKit.h
        Platform/Linux/Toolkit/ScreenSaverWatch.h
        Platform/Linux/Toolkit/SecureInputReasons.h
        Platform/Linux/Toolkit/SessionLock.h
        Platform/Linux/Toolkit/TerminationSignals.h
        Platform/Linux/Toolkit/ToolkitLoop.h
    DEPENDS tocca_linux_audio tocca_linux_capture Qt6::Core Qt6::DBus)
# The compiler's own macros would make a number of the namespace `linux`.
set_target_properties(tocca_linux_desktop PROPERTIES AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF)
target_compile_definitions(tocca_linux_desktop PUBLIC QT_NO_KEYWORDS)
