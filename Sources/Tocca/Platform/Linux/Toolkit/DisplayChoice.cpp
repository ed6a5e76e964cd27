#include "Platform/Linux/Toolkit/DisplayChoice.h"

#include <QByteArray>
#include <QtGlobal>

namespace tocca::platform::linux {

void preferXServer()
{
    if (!qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("xcb;wayland"));
    }
}

} // namespace tocca::platform::linux
