#pragma once

#include "Platform/Linux/Tray/DBusMenuTypes.h"
#include "Platform/Linux/Tray/MenuNode.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

#include <vector>

namespace tocca::platform::linux {

/// A menu that the desktop shows for us, by the protocol that trays and global menu bars share.
///
/// Entries are numbered in reading order from 0, the menu itself, so a source must not change what there is, only how it is.
/// Threads: main.
class DBusMenu : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// Offers the menu at `path`.
    DBusMenu(QDBusConnection bus, QString path, MenuSource source);
    ~DBusMenu() override;

    [[nodiscard]] uint version() const { return 3; }

    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }

    [[nodiscard]] QString textDirection() const { return QStringLiteral("ltr"); }

    [[nodiscard]] QStringList iconThemePath() const { return {}; }

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
    std::vector<Entry> entries_; // by number
    uint revision_ = 1;
};

} // namespace tocca::platform::linux
