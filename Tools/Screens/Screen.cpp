#include "Screen.h"

#include "UI/Quick/QmlView.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QImage>
#include <QKeyEvent>
#include <QQuickItem>

#include <utility>

namespace tocca::ui {
namespace {

void runEvents(int milliseconds)
{
    const QDeadlineTimer end(milliseconds);
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents();
    } while (!end.hasExpired());
}

} // namespace

Screen::Screen(QString directory, QString suffix)
    : directory_(std::move(directory))
    , suffix_(std::move(suffix))
{}

void Screen::show(const QString& file, QObject& model, QSize size)
{
    resize(size);
    [[maybe_unused]] auto* const view = makeQmlView(engine_, file, model, *window_.contentItem());
    window_.show();
    window_.requestActivate();
}

void Screen::resize(QSize size)
{
    window_.resize(size);
    window_.contentItem()->setSize(size);
}

void Screen::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    atRest();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&window_, &event);
    }
}

QImage Screen::atRest()
{
    constexpr int kPause = 120; // milliseconds, longer than any pause in a movement
    constexpr int kMost = 50;
    QImage before;
    for (int i = 0; i < kMost; ++i) {
        runEvents(kPause);
        QImage now = window_.grabWindow();
        if (now == before) {
            return now;
        }
        before = std::move(now);
    }
    return before;
}

void Screen::take(const QString& name)
{
    const QString file = directory_ + QLatin1Char('/') + name + suffix_ + QStringLiteral(".png");
    if (!atRest().save(file)) {
        qFatal("cannot write %s", qPrintable(file));
    }
}

} // namespace tocca::ui
