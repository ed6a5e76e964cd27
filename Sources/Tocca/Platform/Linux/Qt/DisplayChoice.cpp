#include "Platform/Linux/Qt/DisplayChoice.h"

#include "Platform/Linux/System/WaylandSession.h"
#include "Platform/Linux/X11/DesktopScale.h"
#include "Platform/Linux/X11/XConnection.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdlib>
#include <string_view>

namespace tocca::platform::linux {

namespace {

// Qt's own variables
constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr const char* kScale = "QT_SCALE_FACTOR";

std::string inPlainLetters(std::string_view text)
{
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::string plain(text);
    for (std::size_t at = 0; (at = plain.find_first_not_of(kPlain, at)) != std::string::npos; ++at) {
        plain[at] = '_';
    }
    return plain;
}

/// Of the X server that DISPLAY names, whatever its screen.
std::optional<std::string> xServerName()
{
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, nullptr) == 0) {
        return std::nullopt;
    }
    const std::string where = host;
    std::free(host); // NOLINT(cppcoreguidelines-no-malloc): xcb's contract
    const bool isHere = where.empty() || where == "unix" || where.front() == '/';
    return "x" + (isHere ? "" : inPlainLetters(where)) + "_" + std::to_string(display);
}

std::string waylandName()
{
    return "wayland_" + inPlainLetters(qgetenv("WAYLAND_DISPLAY").toStdString());
}

} // namespace

std::optional<std::string> chooseDisplay()
{
    if (qEnvironmentVariableIsSet(kPlatform)) {
        return xServerName().value_or(waylandName());
    }
    if (!qEnvironmentVariableIsEmpty("DISPLAY") && XConnection::open()) {
        qputenv(kPlatform, QByteArrayLiteral("xcb"));
        if (const int scale = desktopScale(); scale > 1 && !qEnvironmentVariableIsSet(kScale)) {
            qputenv(kScale, QByteArray::number(scale));
        }
        return xServerName();
    }
    if (isWaylandSession()) {
        qputenv(kPlatform, QByteArrayLiteral("wayland"));
        return waylandName();
    }
    return std::nullopt;
}

} // namespace tocca::platform::linux
