#pragma once

#include <QDBusConnection>
#include <QString>

namespace tocca::platform::linux {

/// Shows a short text beside the program's name, where the desktop has notices; does not wait.
/// Threads: main. Errors: ignored; where nobody shows notices, there is none.
void sendDesktopNotice(const QDBusConnection& bus, const QString& text);

} // namespace tocca::platform::linux
