#pragma once

#include "Platform/Linux/System/ApplicationId.h"
#include "Platform/Linux/Tray/StatusNotifierTypes.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// The tray icon as an object of the StatusNotifierItem protocol, by which a desktop draws it itself. Threads: main.
class StatusNotifierItem : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category MEMBER category_ CONSTANT)
    Q_PROPERTY(QString Id MEMBER id_ CONSTANT)
    Q_PROPERTY(QString Title MEMBER title_ CONSTANT)
    Q_PROPERTY(QString Status MEMBER status_ CONSTANT)
    Q_PROPERTY(int WindowId MEMBER windowId_ CONSTANT)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName MEMBER none_ CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps OverlayIconPixmap MEMBER noPixmap_ CONSTANT)
    Q_PROPERTY(QString AttentionIconName MEMBER none_ CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusPixmaps AttentionIconPixmap MEMBER noPixmap_ CONSTANT)
    Q_PROPERTY(QString AttentionMovieName MEMBER none_ CONSTANT)
    Q_PROPERTY(tocca::platform::linux::StatusToolTip ToolTip MEMBER toolTip_ CONSTANT)
    Q_PROPERTY(QString IconThemePath MEMBER none_ CONSTANT)
    Q_PROPERTY(bool ItemIsMenu MEMBER itemIsMenu_ CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu MEMBER menu_ CONSTANT)

public:
    struct Observers {
        std::function<void(QPoint)> activated;     ///< where the desktop says the icon or the pointer is
        std::function<void(QPoint)> menuRequested; ///< by a desktop that does not show the menu itself
    };

    /// Offers the item at its well-known path; `menuPath` is where its menu is.
    StatusNotifierItem(QDBusConnection bus, QString menuPath, Observers observers);
    ~StatusNotifierItem() override;

    /// `name` is that of an icon which the desktop has, or empty.
    void setIcon(const QString& name, const StatusPixmaps& pixmaps);

    [[nodiscard]] QString iconName() const { return iconName_; }

    [[nodiscard]] StatusPixmaps iconPixmap() const { return pixmaps_; }

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
    const QDBusObjectPath menu_;
    const Observers observers_;
    const QString category_ = QStringLiteral("ApplicationStatus");
    const QString id_ = QLatin1String(kApplicationId);
    const QString title_ = QStringLiteral("Tocca");
    const QString status_ = QStringLiteral("Active");
    const int windowId_ = 0;
    const QString none_;
    const StatusPixmaps noPixmap_;
    const StatusToolTip toolTip_{{}, {}, title_, {}};
    const bool itemIsMenu_ = false;
    QString iconName_;
    StatusPixmaps pixmaps_;
};

} // namespace tocca::platform::linux
