#pragma once

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace tocca::platform::linux {

/// Hands the reply to a D-Bus call to `handler`, a function of a `QDBusPendingReply<Values…>`, when it has come.
///
/// Threads: main. Errors: an error, or a reply of other types, arrives as a reply that is not valid.
/// Lifetime: once `context` has ended, nothing is called.
template <class... Values, class Handler>
void whenAnswered(const QDBusPendingCall& call, QObject& context, Handler handler)
{
    auto* const watcher = new QDBusPendingCallWatcher(call, &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
                     [watcher, handler = std::move(handler)] {
                         watcher->deleteLater();
                         handler(QDBusPendingReply<Values...>(*watcher));
                     });
}

} // namespace tocca::platform::linux
