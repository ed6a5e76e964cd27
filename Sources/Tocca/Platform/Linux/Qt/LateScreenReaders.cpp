#include "Platform/Linux/Qt/LateScreenReaders.h"

#include <QByteArray>
#include <QtGlobal>

namespace tocca::platform::linux {

void noticeLateScreenReaders()
{
    // Qt asks once, at the start, whether a screen reader is on, and does not hear of one that is switched on later. Told that there always
    // is one, it serves the accessibility bus where the session has one, and sends what somebody listens for.
    constexpr const char* kVariable = "QT_LINUX_ACCESSIBILITY_ALWAYS_ON";
    qputenv(kVariable, "1");
}

} // namespace tocca::platform::linux
