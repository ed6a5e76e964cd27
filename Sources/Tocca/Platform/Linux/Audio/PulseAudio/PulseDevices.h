#pragma once

#include "Platform/Linux/Audio/DeviceServer.h"
#include "Platform/Linux/Audio/PulseAudio/PulseLoop.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>

struct pa_context;
struct pa_source_info;
struct pa_source_output_info;

namespace tocca::platform::linux {

/// The microphones of PulseAudio, or of whatever speaks its protocol.
///
/// A source runs while a program records from it. That is a source output which is not corked, is no level meter, and belongs to a client
/// and not to the server's own loopbacks and effects. Monitors of sinks do not count as sources.
class PulseDevices final : public DeviceServer {
public:
    PulseDevices(ControlLoop& loop, Observer observer);
    ~PulseDevices() override;

    void lookNow() override;

private:
    void connect() override;
    void disconnect();
    void settle();

    // On the client library's thread.
    void stateChanged();
    void ask();
    void note(const pa_source_info& source);
    void note(const pa_source_output_info& recording);
    void conclude();
    void publish(std::optional<Devices> devices);

    ControlEvent news_;
    pa_context* context_ = nullptr;

    std::map<std::uint32_t, std::string> sources_; // this and the next three: client library's thread
    std::set<std::uint32_t> recorded_;
    bool isAsking_ = false;
    bool isStale_ = false; // something has changed since the question was asked

    std::mutex mutex_;
    std::optional<Devices> found_; // client library's thread -> control, under mutex_

    PulseLoop loop_; // last, because its thread uses the members above
};

} // namespace tocca::platform::linux
