#include "Platform/Linux/Qt/LinuxScreens.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace tocca::platform::linux {

namespace {

QGuiApplication* application()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance());
}

} // namespace

std::optional<Screen> LinuxScreens::main() const
{
    const QScreen* const screen = application() != nullptr ? QGuiApplication::primaryScreen() : nullptr;
    if (screen == nullptr) {
        return std::nullopt;
    }
    return Screen{.frame = {.width = double(screen->geometry().width()),
                            .height = double(screen->geometry().height())}};
}

Subscription LinuxScreens::onChange(std::function<void()> handler)
{
    if (!observer_) {
        follow();
    }
    return listeners_.add(std::move(handler));
}

void LinuxScreens::follow()
{
    auto* const source = application();
    if (source == nullptr) {
        return;
    }
    observer_ = std::make_unique<QObject>();
    const auto tell = [this] {
        followMain();
        listeners_.call();
    };
    QObject::connect(source, &QGuiApplication::primaryScreenChanged, observer_.get(), tell);
    QObject::connect(source, &QGuiApplication::screenAdded, observer_.get(), tell);
    QObject::connect(source, &QGuiApplication::screenRemoved, observer_.get(), tell);
    followMain();
}

void LinuxScreens::followMain()
{
    mainObserver_ = std::make_unique<QObject>();
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return;
    }
    const auto tell = [this] { listeners_.call(); };
    QObject::connect(screen, &QScreen::geometryChanged, mainObserver_.get(), tell);
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, mainObserver_.get(), tell);
}

QRect qtRect(const Rect& frame, const QRect& main)
{
    const QRectF rect(main.x() + frame.x, main.y() + main.height() - frame.maxY(), frame.width, frame.height);
    return rect.toRect();
}

} // namespace tocca::platform::linux
