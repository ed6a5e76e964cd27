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
    lookAgain_ = std::make_unique<QTimer>();
    lookAgain_->setSingleShot(true);
    lookAgain_->setInterval(0);
    QObject::connect(lookAgain_.get(), &QTimer::timeout, observer_.get(), [this] { tellIfMoved(); });
    const auto tell = [this] {
        followAll();
        changed();
    };
    QObject::connect(source, &QGuiApplication::primaryScreenChanged, observer_.get(), tell);
    QObject::connect(source, &QGuiApplication::screenAdded, observer_.get(), tell);
    QObject::connect(source, &QGuiApplication::screenRemoved, observer_.get(), tell);
    followAll();
    told_ = mainPlace();
}

void LinuxScreens::followAll()
{
    screensObserver_ = std::make_unique<QObject>();
    const auto tell = [this] { changed(); };
    for (const QScreen* const screen : QGuiApplication::screens()) {
        QObject::connect(screen, &QScreen::geometryChanged, screensObserver_.get(), tell);
        QObject::connect(screen, &QScreen::availableGeometryChanged, screensObserver_.get(), tell);
        QObject::connect(screen, &QScreen::virtualGeometryChanged, screensObserver_.get(), tell);
        QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, screensObserver_.get(), tell);
    }
}

void LinuxScreens::changed()
{
    tellIfMoved();
    // In the midst of several changes Qt may still have the new main screen's old place, and tell of nothing later.
    lookAgain_->start();
}

void LinuxScreens::tellIfMoved()
{
    const Place place = mainPlace();
    if (place != told_) {
        told_ = place;
        listeners_.call();
    }
}

LinuxScreens::Place LinuxScreens::mainPlace()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? Place{screen->geometry(), screen->devicePixelRatio()} : Place{};
}

QRect qtRect(const Rect& frame, const QRect& main)
{
    const QRectF rect(main.x() + frame.x, main.y() + main.height() - frame.maxY(), frame.width, frame.height);
    return rect.toRect();
}

QRect pixelRect(const Rect& frame, const QRect& main, double scale)
{
    const QSize size = QSizeF(frame.width * scale, frame.height * scale).toSize();
    const int left = main.x() + qRound(frame.x * scale);
    const int bottom = main.y() + main.height() - qRound(frame.y * scale); // the first row below it
    return QRect(QPoint(left, bottom - size.height()), size).intersected(main);
}

} // namespace tocca::platform::linux
