#include "Platform/Linux/Qt/TerminationSignals.h"

#include <QCoreApplication>

#include <array>
#include <csignal>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr int kPatience = 1500;     // milliseconds
constexpr int kEndedBySignal = 128; // what a shell adds to the signal's number

void ring(const FileDescriptor& bell)
{
    constexpr std::uint64_t kOnce = 1;
    (void)!write(bell.get(), &kOnce, sizeof(kOnce));
}

} // namespace

TerminationSignals::TerminationSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, number);
    }
    signals_ = FileDescriptor(signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC));
    wish_ = FileDescriptor(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC));
    end_ = FileDescriptor(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC));
    if (!signals_.isOpen() || !wish_.isOpen() || !end_.isOpen()) {
        signals_ = FileDescriptor();
        return; // the signals end the process at once
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    watcher_ = std::thread([this] { watch(); });
}

TerminationSignals::~TerminationSignals()
{
    if (watcher_.joinable()) {
        ring(end_);
        watcher_.join();
    }
}

void TerminationSignals::attach()
{
    if (!signals_.isOpen()) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(wish_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        std::uint64_t count = 0;
        if (read(wish_.get(), &count, sizeof(count)) == static_cast<ssize_t>(sizeof(count))) {
            QCoreApplication::exit(); // `quit` would ask the windows first, and ours refuse to close
        }
    });
}

void TerminationSignals::watch()
{
    std::array waiting{pollfd{.fd = end_.get(), .events = POLLIN, .revents = 0},
                       pollfd{.fd = signals_.get(), .events = POLLIN, .revents = 0}};
    while (poll(waiting.data(), waiting.size(), -1) < 0 || waiting[1].revents == 0) {
        if ((waiting[0].revents & POLLIN) != 0) {
            return;
        }
    }
    signalfd_siginfo info{};
    const bool isRead = read(signals_.get(), &info, sizeof(info)) == static_cast<ssize_t>(sizeof(info));
    ring(wish_);
    if (poll(waiting.data(), 1, kPatience) == 0) {
        _exit(kEndedBySignal + (isRead ? static_cast<int>(info.ssi_signo) : SIGTERM));
    }
}

} // namespace tocca::platform::linux
