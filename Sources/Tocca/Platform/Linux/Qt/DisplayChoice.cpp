#include "Platform/Linux/Qt/DisplayChoice.h"

#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

namespace tocca::platform::linux {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM"; // the toolkit's own

bool answersX()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return false;
    }
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

void chooseDisplay()
{
    if (qEnvironmentVariableIsSet(kPlatform)) {
        return;
    }
    if (answersX()) {
        qputenv(kPlatform, QByteArrayLiteral("xcb"));
    } else if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        qputenv(kPlatform, QByteArrayLiteral("wayland;offscreen"));
    } else {
        qputenv(kPlatform, QByteArrayLiteral("offscreen"));
    }
}

} // namespace tocca::platform::linux
