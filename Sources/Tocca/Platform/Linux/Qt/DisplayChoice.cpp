#include "Platform/Linux/Qt/DisplayChoice.h"

#include "Platform/Linux/X11/XConnection.h"

#include <QByteArray>
#include <QtGlobal>

namespace tocca::platform::linux {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM"; // Qt's own variable

} // namespace

void chooseDisplay()
{
    if (qEnvironmentVariableIsSet(kPlatform)) {
        return;
    }
    if (!qEnvironmentVariableIsEmpty("DISPLAY") && XConnection::open()) {
        qputenv(kPlatform, QByteArrayLiteral("xcb"));
    } else if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        qputenv(kPlatform, QByteArrayLiteral("wayland;offscreen"));
    } else {
        qputenv(kPlatform, QByteArrayLiteral("offscreen"));
    }
}

} // namespace tocca::platform::linux
