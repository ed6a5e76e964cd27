#include "Platform/Linux/Qt/XDesktop.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr const char* kWindowClass =
    "Tocca"; // which task switchers show; the desktop entry's StartupWMClass says the same
constexpr std::size_t kCompositor = 0;
constexpr std::size_t kTray = 1;

xcb_connection_t* connectionOfQt()
{
    auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (application == nullptr) {
        return nullptr;
    }
    const auto* const x11 = application->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

} // namespace

bool XDesktop::isPresent()
{
    return connectionOfQt() != nullptr;
}

std::optional<WindowRequests> XDesktop::requests()
{
    auto* const connection = connectionOfQt();
    return connection != nullptr ? std::optional<WindowRequests>(std::in_place, connection) : std::nullopt;
}

void XDesktop::adopt(QWindow& window)
{
    window.create();
    if (auto desktop = requests()) {
        desktop->setClass(static_cast<xcb_window_t>(window.winId()), "tocca", kWindowClass);
    }
}

bool XDesktop::isComposed()
{
    watch();
    return selections_ && selections_->owner(kCompositor) != XCB_NONE;
}

xcb_window_t XDesktop::trayOwner()
{
    watch();
    return selections_ ? selections_->owner(kTray) : xcb_window_t{XCB_NONE};
}

Subscription XDesktop::onChange(std::function<void()> handler)
{
    watch();
    return listeners_.add(std::move(handler));
}

void XDesktop::watch()
{
    if (isWatched_ || !isPresent()) {
        return;
    }
    isWatched_ = true;
    selections_ = SelectionWatch::open({"_NET_WM_CM_S", "_NET_SYSTEM_TRAY_S"}, [this] { listeners_.call(); });
    if (!selections_) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(selections_->fd(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        if (!selections_->serve()) {
            notifier_->setEnabled(false); // Qt ends the program when the server is gone
        }
    });
}

} // namespace tocca::platform::linux
