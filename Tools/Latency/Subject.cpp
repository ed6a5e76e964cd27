#include "Subject.h"

namespace tocca::latency {

namespace {

constexpr std::size_t kTraceCapacity = 4096;

} // namespace

Subject::Subject()
    : trace_(kTraceCapacity)
    , mixer_(system_.clock())
    , output_(standardOutput_)
    , players_(output_, system_.clock(), mixer_)
    , host_(system_.with(players_))
    , loader_(host_)
    , engine_(host_, loader_, [] { return false; })
    , monitor_(host_, engine_)
{
    engine_.selectedCustomPack.set(pack_.info());
    mixer_.setTrace(&trace_);
    output_.start(mixer_);
}

std::vector<double> Subject::takeTimesToFirstSample()
{
    std::vector<double> times;
    while (const auto entry = trace_.next()) {
        times.push_back(entry->renderedAt - entry->eventTime);
    }
    return times;
}

} // namespace tocca::latency
