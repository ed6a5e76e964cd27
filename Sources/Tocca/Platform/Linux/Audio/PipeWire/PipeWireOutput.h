#pragma once

#include "Platform/Linux/Audio/PipeWire/PipeWireConnection.h"
#include "Platform/Linux/Audio/PipeWire/PipeWireStream.h"
#include "Platform/Linux/Audio/ServerOutput.h"

#include <cstdint>
#include <memory>
#include <set>

namespace tocca::platform::linux {

/// The output through PipeWire.
///
/// It is `Ready` while the server's registry shows a sink. A stream that is awake and yet without cycles (`ProgressWatch`) counts as lost,
/// like a connection that reports an error: both are made again.
class PipeWireOutput final : public ServerOutput {
public:
    PipeWireOutput(ControlLoop& loop, player::RenderSource& source, OutputMeter& meter, Observer observer);
    ~PipeWireOutput() override;

    void lookNow() override;
    void setAwake(bool isAwake) override;
    void inspect(double now) override;

private:
    void connect() override;
    void lose();
    void settle();
    void openStream();

    PipeWireConnection connection_;
    std::unique_ptr<PipeWireStream> stream_;
    std::set<std::uint32_t> sinks_;
    bool isEnumerated_ = false; // the registry has shown what was there at first
    bool isLost_ = false;       // waiting to be taken down
    double triedRate_ = 0.0;    // the last graph rate for which the stream was made again
};

} // namespace tocca::platform::linux
