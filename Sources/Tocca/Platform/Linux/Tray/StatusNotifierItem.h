#pragma once

#include "Platform/Linux/Tray/StatusNotifierTypes.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// A status icon that the desktop draws, as the bus's protocol for that wants it. Threads: main.
class StatusNotifierItem : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ none CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(QString IconThemePath READ none CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    struct Observers {
        std::function<void()> activated;
        std::function<void(QPoint)> menuRequested; ///< by a desktop that does not show the menu itself
    };

    /// Offers the item at its well-known path; `menuPath` is where its menu is.
    StatusNotifierItem(QDBusConnection bus, QString menuPath, Observers observers);
    ~StatusNotifierItem() override;

    /// `name` is that of an icon which the desktop has, or empty.
    void setIcon(const QString& name, const StatusPixmaps& pixmaps);

    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }

    [[nodiscard]] QString id() const { return QStringLiteral("org.tocca.Tocca"); }

    [[nodiscard]] QString title() const { return QStringLiteral("Tocca"); }

    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }

    [[nodiscard]] int windowId() const { return 0; }

    [[nodiscard]] QString iconName() const { return iconName_; }

    [[nodiscard]] StatusPixmaps iconPixmap() const { return pixmaps_; }

    [[nodiscard]] QString none() const { return {}; }

    [[nodiscard]] StatusPixmaps noPixmap() const { return {}; }

    [[nodiscard]] StatusToolTip toolTip() const { return {{}, {}, title(), {}}; }

    [[nodiscard]] bool itemIsMenu() const { return false; }

    [[nodiscard]] QDBusObjectPath menu() const { return QDBusObjectPath(menuPath_); }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    // By the names of the protocol.
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);

    void Scroll(int /*delta*/, const QString& /*orientation*/) {}

    void ProvideXdgActivationToken(const QString& token);

Q_SIGNALS:
    void NewIcon();

private:
    QDBusConnection bus_;
    const QString menuPath_;
    const Observers observers_;
    QString iconName_;
    StatusPixmaps pixmaps_;
};

} // namespace tocca::platform::linux
