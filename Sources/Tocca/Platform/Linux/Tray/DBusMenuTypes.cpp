#include "Platform/Linux/Tray/DBusMenuTypes.h"

#include <QDBusMetaType>
#include <QStringList>

namespace tocca::platform::linux {

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEntry& entry)
{
    argument.beginStructure();
    argument << entry.id << entry.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEntry& entry)
{
    argument.beginStructure();
    argument >> entry.id >> entry.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuTree& tree)
{
    argument.beginStructure();
    argument << tree.id << tree.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const DBusMenuTree& child : tree.children) {
        argument << QDBusVariant(QVariant::fromValue(child));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuTree& tree)
{
    argument.beginStructure();
    argument >> tree.id >> tree.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        tree.children.append(qdbus_cast<DBusMenuTree>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event)
{
    argument.beginStructure();
    argument << event.id << event.event << event.data << event.time;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event)
{
    argument.beginStructure();
    argument >> event.id >> event.event >> event.data >> event.time;
    argument.endStructure();
    return argument;
}

void registerDBusMenuTypes()
{
    qDBusRegisterMetaType<QList<QStringList>>(); // shortcuts
    qDBusRegisterMetaType<DBusMenuEntry>();
    qDBusRegisterMetaType<QList<DBusMenuEntry>>();
    qDBusRegisterMetaType<DBusMenuTree>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
}

} // namespace tocca::platform::linux
