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
/// A source runs while a program records from it: a source output that is not corked, meters no peaks, and belongs to a client
/// rather than to the server's own loopbacks and effects. Monitors of sinks are no sources here.
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

    std::map<std::uint32_t, std::string> sources_; // client library's thread, as are the next three
    std::set<std::uint32_t> recorded_;
    bool isAsking_ = false;
    bool isStale_ = false; // something has changed since the question

    std::mutex mutex_;
    std::optional<Devices> found_; // client library's thread -> control, under mutex_

    PulseLoop loop_; // the last, as its thread uses what stands above
};

} // namespace tocca::platform::linux
