#include "Platform/Linux/Tray/DBusMenu.h"

#include <cstddef>
#include <utility>

namespace tocca::platform::linux {

namespace {

QVariantMap propertiesOf(const MenuNode& node, bool hasChildren)
{
    if (node.label.isEmpty() && !hasChildren) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    QString label = node.label;
    label.replace(QLatin1Char('_'),
                  QLatin1String("__")); // a single one marks the letter that chooses the entry
    QVariantMap properties{{QStringLiteral("label"), label}, {QStringLiteral("enabled"), node.isEnabled}};
    if (hasChildren) {
        properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    }
    if (node.isCheckable) {
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), node.isChecked ? 1 : 0);
    }
    if (!node.shortcut.isEmpty()) {
        properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(QList<QStringList>{node.shortcut}));
    }
    return properties;
}

} // namespace

DBusMenu::DBusMenu(QDBusConnection bus, QString path, MenuSource source)
    : bus_(std::move(bus))
    , path_(std::move(path))
    , source_(std::move(source))
{
    registerDBusMenuTypes();
    refresh();
    bus_.registerObject(path_, this,
                        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                            QDBusConnection::ExportAllProperties);
}

DBusMenu::~DBusMenu()
{
    bus_.unregisterObject(path_);
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& /*propertyNames*/,
                         DBusMenuTree& layout)
{
    refresh();
    if (has(parentId)) {
        layout = tree(parentId, recursionDepth);
    }
    return revision_;
}

QList<DBusMenuEntry> DBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& /*propertyNames*/)
{
    refresh();
    QList<DBusMenuEntry> answers;
    for (std::size_t number = 0; number < entries_.size(); ++number) {
        const int id = static_cast<int>(number);
        if (ids.isEmpty() || ids.contains(id)) {
            answers.append({id, propertiesOf(entries_[number].node, !entries_[number].children.empty())});
        }
    }
    return answers;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name)
{
    if (!has(id)) {
        return QDBusVariant(QString());
    }
    const Entry& entry = entries_[static_cast<std::size_t>(id)];
    return QDBusVariant(propertiesOf(entry.node, !entry.children.empty()).value(name, QString()));
}

void DBusMenu::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/)
{
    if (eventId != QLatin1String("clicked") || !has(id)) {
        return;
    }
    const MenuNode& node = entries_[static_cast<std::size_t>(id)].node;
    if (node.isEnabled && node.choose) {
        // After the answer: what is chosen may end the program or this menu.
        QMetaObject::invokeMethod(this, node.choose, Qt::QueuedConnection);
    }
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent>& events)
{
    QList<int> unknown;
    for (const DBusMenuEvent& event : events) {
        if (!has(event.id)) {
            unknown.append(event.id);
        }
        Event(event.id, event.event, event.data, event.time);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int /*id*/)
{
    return true; // check marks may have changed; the desktop then asks for the layout
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    idErrors.clear();
    return ids;
}

void DBusMenu::refresh()
{
    entries_.clear();
    add(source_());
}

DBusMenuTree DBusMenu::tree(int id, int depth) const
{
    const Entry& entry = entries_[static_cast<std::size_t>(id)];
    DBusMenuTree result{
        .id = id, .properties = propertiesOf(entry.node, !entry.children.empty()), .children = {}};
    if (depth != 0) {
        for (const int child : entry.children) {
            result.children.append(tree(child, depth - 1)); // from −1 it never ends
        }
    }
    return result;
}

bool DBusMenu::has(int id) const
{
    return id >= 0 && static_cast<std::size_t>(id) < entries_.size();
}

int DBusMenu::add(const MenuNode& node)
{
    const std::size_t number = entries_.size();
    Entry entry{.node = node, .children = {}};
    entry.node.children.clear();
    entries_.push_back(std::move(entry));
    for (const MenuNode& child : node.children) {
        const int childId = add(child);
        entries_[number].children.push_back(childId);
    }
    return static_cast<int>(number);
}

} // namespace tocca::platform::linux
