#include "Platform/Linux/Tray/LinuxStatusBar.h"

#include "Platform/Linux/System/ApplicationId.h"
#include "Platform/Linux/Tray/IconPainting.h"

#include <QCursor>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

#include <utility>

namespace tocca::platform::linux {

namespace {

const QString kIconName = QLatin1String(kApplicationId) + QStringLiteral("-symbolic");
const auto kMenuPath = QStringLiteral("/StatusItemMenu");
const QColor kLight(0xEE, 0xEE, 0xEE); // most trays are dark, and the icon has a rim

/// The icon's name when it is installed, so that panels find it and colour it to match; else empty.
QString installedIconName()
{
    const auto file =
        QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                               QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(kIconName));
    return file.isEmpty() ? QString() : kIconName;
}

} // namespace

LinuxStatusBar::LinuxStatusBar(XDesktop& desktop, Commands commands)
    : desktop_(desktop)
    , commands_(std::move(commands))
{}

std::unique_ptr<StatusItem> LinuxStatusBar::makeStatusItem()
{
    return std::make_unique<LinuxStatusItem>(*this);
}

bool LinuxStatusBar::isShown() const
{
    return item_ != nullptr && item_->isShown();
}

LinuxStatusItem::LinuxStatusItem(LinuxStatusBar& bar)
    : bar_(bar)
{
    bar_.item_ = this;
    const auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        busMenu_ = std::make_unique<DBusMenu>(bus, kMenuPath, [this] { return menu(); });
        notifierItem_ = std::make_unique<StatusNotifierItem>(
            bus, kMenuPath,
            StatusNotifierItem::Observers{.activated = [this](QPoint place) { click(place); },
                                          .menuRequested = [this](QPoint /*place*/) { openMenu(); }});
        notifierWatch_ = std::make_unique<StatusNotifierWatch>(bus, [this] { follow(); });
    }
    traysChanged_ = bar_.desktop_.onChange([this] { follow(); });
    follow();
}

LinuxStatusItem::~LinuxStatusItem()
{
    bar_.item_ = nullptr;
}

void LinuxStatusItem::setIcon(const TemplateIcon& icon)
{
    icon_ = icon;
    if (notifierItem_) {
        StatusPixmaps pixmaps;
        for (const int pixels : {16, 18, 22, 24, 32, 48}) { // what panels ask for
            pixmaps.append(statusPixmap(paintIcon(icon_, pixels, kLight)));
        }
        notifierItem_->setIcon(installedIconName(), pixmaps);
    }
    if (embedded_) {
        embedded_->repaint();
    }
}

QRect LinuxStatusItem::iconPlace() const
{
    const auto place = embedded_ ? embedded_->place() : std::nullopt;
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!place || screen == nullptr) {
        return {};
    }
    const double scale = screen->devicePixelRatio();
    return QRectF(place->x / scale, place->y / scale, place->width / scale, place->height / scale).toRect();
}

bool LinuxStatusItem::isShown() const
{
    return embedded_ || (notifierWatch_ && notifierWatch_->hasHost());
}

void LinuxStatusItem::click(const std::optional<QPoint>& place)
{
    activationPlace_ = place;
    if (action_) {
        action_();
    }
}

void LinuxStatusItem::openMenu()
{
    popup_.popUp(menu(), QCursor::pos());
}

MenuNode LinuxStatusItem::menu()
{
    const auto& commands = bar_.commands_;
    MenuNode root;
    root.children = {
        {.label = QStringLiteral("Show Tocca"), .choose = [this] { click(); }},
        {.label = QStringLiteral("Open Tocca Studio"), .choose = commands.openStudio},
        {},
        {.label = QStringLiteral("Quit Tocca"), .choose = commands.quit},
    };
    return root;
}

void LinuxStatusItem::follow()
{
    const xcb_window_t tray = bar_.desktop_.trayOwner();
    if (tray == XCB_NONE || (notifierWatch_ && notifierWatch_->hasHost())) {
        embeddedNotifier_.reset();
        embedded_.reset();
        refusedTray_ = XCB_NONE;
        return;
    }
    if (embedded_ || tray == refusedTray_) {
        return;
    }
    embedded_ =
        EmbeddedIcon::dock(tray,
                           [this](int size) {
                               const QImage image = paintIcon(icon_, size, kLight);
                               const auto* const first =
                                   reinterpret_cast<const std::uint32_t*>(image.constBits());
                               return std::vector<std::uint32_t>(first, first + image.sizeInBytes() / 4);
                           },
                           {.clicked = [this] { click(); }, .menuRequested = [this] { openMenu(); }});
    if (!embedded_) {
        return;
    }
    embeddedNotifier_ = std::make_unique<QSocketNotifier>(embedded_->fd(), QSocketNotifier::Read);
    QObject::connect(embeddedNotifier_.get(), &QSocketNotifier::activated, embeddedNotifier_.get(),
                     [this, tray] {
                         if (!embedded_->serve()) {
                             embeddedNotifier_->setEnabled(false);
                             embeddedNotifier_.release()->deleteLater(); // it is calling
                             embedded_.reset();
                             refusedTray_ = tray;
                             follow(); // another one may have come by now
                         }
                     });
    if (embedded_ && !embedded_->serve()) {
        embeddedNotifier_.reset();
        embedded_.reset();
    }
}

} // namespace tocca::platform::linux
