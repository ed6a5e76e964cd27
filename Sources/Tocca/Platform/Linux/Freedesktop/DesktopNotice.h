#pragma once

#include <QDBusConnection>
#include <QString>

namespace tocca::platform::linux {

/// Shows a desktop notification with the program's name and `text`; does not wait.
/// Threads: main. Errors: ignored; a desktop without notifications shows none.
void sendDesktopNotice(const QDBusConnection& bus, const QString& text);

} // namespace tocca::platform::linux
