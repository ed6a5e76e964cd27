#pragma once

#include "Platform/Linux/Tray/DBusMenuTypes.h"
#include "Platform/Linux/Tray/MenuNode.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

#include <vector>

namespace tocca::platform::linux {

/// A menu as an object of the DBusMenu protocol, by which trays and global menu bars show it.
///
/// The menu itself is entry 0, and its entries are numbered from there in reading order. A number must keep its meaning, so a source
/// may change texts and check marks, but not which entries there are.
/// Threads: main.
class DBusMenu : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version MEMBER version_ CONSTANT)
    Q_PROPERTY(QString Status MEMBER status_ CONSTANT)
    Q_PROPERTY(QString TextDirection MEMBER textDirection_ CONSTANT)
    Q_PROPERTY(QStringList IconThemePath MEMBER iconThemePath_ CONSTANT)

public:
    /// Offers the menu at `path`.
    DBusMenu(QDBusConnection bus, QString path, MenuSource source);
    ~DBusMenu() override;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    // By the names of the protocol.
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                   tocca::platform::linux::DBusMenuTree& layout);
    QList<tocca::platform::linux::DBusMenuEntry> GetGroupProperties(const QList<int>& ids,
                                                                    const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<tocca::platform::linux::DBusMenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);

private:
    /// Takes the menu as it is now.
    void refresh();
    [[nodiscard]] DBusMenuTree tree(int id, int depth) const;
    [[nodiscard]] bool has(int id) const;

    struct Entry {
        MenuNode node; // without its children
        std::vector<int> children;
    };

    int add(const MenuNode& node);

    QDBusConnection bus_;
    const QString path_;
    const MenuSource source_;
    const uint version_ = 3;
    const QString status_ = QStringLiteral("normal");
    const QString textDirection_ = QStringLiteral("ltr");
    const QStringList iconThemePath_;
    std::vector<Entry> entries_; // by number
    uint revision_ = 1;
};

} // namespace tocca::platform::linux
