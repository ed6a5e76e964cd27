#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QVariantMap>

namespace tocca::platform::linux {

/// An entry of a DBusMenu: its number and the properties that it has in the protocol.
struct DBusMenuEntry {
    int id = 0;
    QVariantMap properties;
};

/// An entry with everything below it.
struct DBusMenuTree {
    int id = 0;
    QVariantMap properties;
    QList<DBusMenuTree> children;
};

/// What a person did to an entry.
struct DBusMenuEvent {
    int id = 0;
    QString event;
    QDBusVariant data;
    uint time = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEntry& entry);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEntry& entry);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuTree& tree);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuTree& tree);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event);

/// Makes the types known to the bus; once is enough, more does no harm.
void registerDBusMenuTypes();

} // namespace tocca::platform::linux
