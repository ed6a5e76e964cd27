#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <utility>

namespace tocca::platform::linux {

/// Calls `call` from the event loop, unless `context` has ended by then. Threads: main.
inline void later(QObject& context, std::function<void()> call)
{
    auto* const timer = new QTimer(&context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, call = std::move(call)] {
        timer->deleteLater();
        call();
    });
    timer->start(0);
}

} // namespace tocca::platform::linux
