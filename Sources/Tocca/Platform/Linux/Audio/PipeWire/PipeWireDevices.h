#pragma once

#include "Platform/Linux/Audio/DeviceServer.h"
#include "Platform/Linux/Audio/PipeWire/CaptureGraph.h"
#include "Platform/Linux/Audio/PipeWire/PipeWireConnection.h"

#include <cstdint>
#include <map>
#include <memory>

struct pw_node_info;
struct spa_dict;

namespace tocca::platform::linux {

/// The microphones of PipeWire, from its registry and from what each recording stream tells about itself.
///
/// A recording stream counts while it runs, unless it records what is played or only listens. What only listens is a monitor
/// (`stream.monitor`, `media.category` Monitor), a level meter (`resample.peaks`), a passive stream, which never keeps a device running
/// (`node.passive`), or one end of a loopback or filter (`node.link-group`): the other end counts once somebody records from it.
class PipeWireDevices final : public DeviceServer {
public:
    PipeWireDevices(ControlLoop& loop, Observer observer);
    ~PipeWireDevices() override;

    void lookNow() override;

private:
    class Recorder;

    void connect() override;
    void lose();
    void appear(std::uint32_t id, const char* type, const spa_dict* properties);
    void vanish(std::uint32_t id);
    void describe(std::uint32_t id, const pw_node_info& info);
    void tell();

    PipeWireConnection connection_;
    std::map<std::uint32_t, std::unique_ptr<Recorder>> recorders_;
    CaptureGraph graph_;
    bool isEnumerated_ = false; // everything that was there at first is in the graph
};

} // namespace tocca::platform::linux
