#include "Platform/Linux/Audio/PipeWire/PipeWireOutput.h"

#include <pipewire/pipewire.h>
#include <pthread.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr int kSmallestQuantum = 64;
constexpr int kLargestQuantum = 1024;

/// Before 1.3.81 only the configuration of this name gives a client's data thread real-time scheduling.
const char* configurationName()
{
    std::array<int, 3> version{};
    constexpr std::array<int, 3> kObsoleteFrom{1, 3, 81};
    // NOLINTNEXTLINE(cert-err34-c): an unreadable version counts as an old one
    std::sscanf(pw_get_library_version(), "%d.%d.%d", version.data(), &version[1], &version[2]);
    return version < kObsoleteFrom ? "client-rt.conf" : "client.conf";
}

pw_context* makeContext(pw_loop* loop)
{
    pw_context* const context =
        pw_context_new(loop, pw_properties_new(PW_KEY_CONFIG_NAME, configurationName(), nullptr), 0);
    if (context != nullptr) {
        // On the data thread, but before it has anything to render.
        pw_data_loop_invoke(
            pw_context_get_data_loop(context),
            [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void*) {
                return pthread_setname_np(pthread_self(), "tocca-render");
            },
            0, nullptr, 0, false, nullptr);
    }
    return context;
}

bool isSink(const char* type, const spa_dict* properties)
{
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) != 0 || properties == nullptr) {
        return false;
    }
    const auto is = [properties](const char* key, const char* value) {
        const char* const actual = spa_dict_lookup(properties, key);
        return actual != nullptr && std::strcmp(actual, value) == 0;
    };
    // The session manager makes a dummy of this name when there is nothing to play to.
    return (is(PW_KEY_MEDIA_CLASS, "Audio/Sink") || is(PW_KEY_MEDIA_CLASS, "Audio/Duplex")) &&
           !is(PW_KEY_NODE_NAME, "auto_null");
}

} // namespace

PipeWireOutput::PipeWireOutput(ControlLoop& loop, player::RenderSource& source, OutputMeter& meter,
                               Observer observer)
    : ServerOutput(loop, source, meter, std::move(observer), kSmallestQuantum, kLargestQuantum)
    , connection_([&loop] { return makeContext(loop.native()); },
                  {.lost = [this] { lose(); },
                   .enumerated =
                       [this] {
                           isEnumerated_ = true;
                           resetDelay();
                           settle();
                       },
                   .appeared =
                       [this](std::uint32_t id, const char* type, const spa_dict* properties) {
                           if (isSink(type, properties)) {
                               sinks_.insert(id);
                               settle();
                           }
                       },
                   .vanished =
                       [this](std::uint32_t id) {
                           if (sinks_.erase(id) > 0) {
                               settle();
                           }
                       }})
{}

PipeWireOutput::~PipeWireOutput() = default;

void PipeWireOutput::lookNow()
{
    if (connection_.core() == nullptr) {
        retrySoon();
    }
}

void PipeWireOutput::setAwake(bool isAwake)
{
    isAwake_ = isAwake;
    disturb();
    if (!stream_) {
        return;
    }
    if (!isAwake && governor_.rest(monotonicSeconds())) {
        stream_->requestQuantum(governor_.quantum());
    }
    stream_->setAwake(isAwake);
}

void PipeWireOutput::inspect(double now)
{
    if (!stream_ || isLost_) {
        return;
    }
    if (progress_.hasStalled(meter_.cycles(), now)) {
        lose();
        return;
    }
    if (governor_.observe(meter_.dropOuts(), now)) {
        stream_->requestQuantum(governor_.quantum());
    }
    if (stream_->isResampled() && stream_->graphRate() != triedRate_) {
        triedRate_ = stream_->graphRate();
        openStream();
    }
}

void PipeWireOutput::connect()
{
    stream_.reset();
    sinks_.clear();
    isEnumerated_ = false;
    isLost_ = false;
    if (!connection_.connect(
            pw_properties_new(PW_KEY_APP_NAME, "Tocca", PW_KEY_APP_ICON_NAME, "tocca", nullptr))) {
        report(Availability::Absent);
        retryLater();
    }
}

void PipeWireOutput::lose()
{
    isLost_ = true;
    retrySoon(); // which takes the connection down; its own events may not
}

void PipeWireOutput::settle()
{
    if (!isEnumerated_) {
        return;
    }
    if (sinks_.empty()) {
        stream_.reset();
        report(Availability::NoSink);
    } else if (!stream_) {
        report(Availability::Ready);
        openStream();
    }
}

void PipeWireOutput::openStream()
{
    stream_.reset();
    stream_ = std::make_unique<PipeWireStream>(connection_.core(), source_, meter_, [this] { lose(); });
    disturb();
    if (!stream_->connect(governor_.quantum(), isAwake_)) {
        lose();
    }
}

} // namespace tocca::platform::linux
