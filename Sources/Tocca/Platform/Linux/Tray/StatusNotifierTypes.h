#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QString>

namespace tocca::platform::linux {

/// A picture of the StatusNotifierItem protocol. Units: pixels; ARGB in network order, not premultiplied.
struct StatusPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;
};

using StatusPixmaps = QList<StatusPixmap>;

/// The tool tip of the StatusNotifierItem protocol.
struct StatusToolTip {
    QString iconName;
    StatusPixmaps pixmaps;
    QString title;
    QString text;
};

[[nodiscard]] StatusPixmap statusPixmap(const QImage& image);

QDBusArgument& operator<<(QDBusArgument& argument, const StatusPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const StatusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusToolTip& toolTip);

/// Makes the types known to the bus; once is enough, more does no harm.
void registerStatusNotifierTypes();

} // namespace tocca::platform::linux
