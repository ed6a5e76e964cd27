#include "Platform/Linux/Qt/TerminationSignals.h"

#include <QCoreApplication>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace tocca::platform::linux {

TerminationSignals::TerminationSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, number);
    }
    descriptor_ = FileDescriptor(signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC));
    if (!descriptor_.isOpen()) {
        return; // the signals end the process at once
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void TerminationSignals::attach()
{
    if (!descriptor_.isOpen()) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        signalfd_siginfo info{};
        if (read(descriptor_.get(), &info, sizeof(info)) == static_cast<ssize_t>(sizeof(info))) {
            QCoreApplication::exit(); // `quit` would ask the windows first, and ours refuse to close
        }
    });
}

} // namespace tocca::platform::linux
