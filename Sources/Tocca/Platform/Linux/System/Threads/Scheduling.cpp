#include "Platform/Linux/System/Threads/Scheduling.h"

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kLongestName = 15;
// Below every audio server's own threads, so that a stroke never delays the block it is meant for.
constexpr int kRealTimePriority = 5;
constexpr int kRaisedNice = -11;

Scheduling raise() noexcept
{
    sched_param parameters{};
    parameters.sched_priority = kRealTimePriority;
    // Reset on fork: programs that the thread starts must not inherit the privilege.
    if (::sched_setscheduler(0, SCHED_RR | SCHED_RESET_ON_FORK, &parameters) == 0) {
        return Scheduling::RealTime;
    }
    if (::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), kRaisedNice) == 0) {
        return Scheduling::RaisedNice;
    }
    return Scheduling::Ordinary;
}

} // namespace

Scheduling adoptThread(const std::string& name, ThreadRole role, bool isUserInteractive,
                       const SchedulingAppeal& appeal)
{
    ::pthread_setname_np(::pthread_self(), name.substr(0, kLongestName).c_str());
    setThreadRole(role);
    if (!isUserInteractive) {
        return Scheduling::Ordinary;
    }
    const Scheduling scheduling = raise();
    if (scheduling == Scheduling::Ordinary && appeal) {
        appeal(static_cast<std::uint64_t>(::gettid()));
    }
    return scheduling;
}

} // namespace tocca::platform::linux
