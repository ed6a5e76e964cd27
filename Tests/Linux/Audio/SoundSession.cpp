#include "SoundSession.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace tocca::platform::linux {

namespace {

/// A tenth of a second without a flaw is no accident, and survives an unlucky scheduler around it.
constexpr std::size_t kFlawlessFrames = 4800;

/// Records some of what the sink plays; PipeWire's own PulseAudio speaks the same protocol.
std::vector<float> record(double sampleRate)
{
    const std::string command =
        "timeout 0.7 parec --device=speaker.monitor --format=float32le --channels=2 --latency-msec=20 --raw "
        "--rate=" +
        std::to_string(static_cast<int>(sampleRate)) + " 2>/dev/null";
    std::vector<float> samples;
    FILE* const pipe = popen(command.c_str(), "re");
    if (pipe == nullptr) {
        return samples;
    }
    std::array<float, 1024> block{};
    while (const std::size_t count = std::fread(block.data(), sizeof(float), block.size(), pipe)) {
        samples.insert(samples.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(count));
    }
    pclose(pipe);
    return samples;
}

} // namespace

void SoundSession::SetUp()
{
    ASSERT_NE(std::getenv("PRIVATE_SESSION"), nullptr) << "to be run by Tools/PrivateSession/private-session";
    stopSound();
}

void SoundSession::startSound(const std::string& server)
{
    runInSession("\"$PRIVATE_SESSION\" start-sound " + server);
}

void SoundSession::stopSound()
{
    runInSession("\"$PRIVATE_SESSION\" stop-sound");
}

void SoundSession::runInSession(const std::string& command)
{
    ASSERT_EQ(std::system(command.c_str()), 0) << command; // NOLINT(cert-env33-c)
}

void SoundSession::startOutput(LinuxAudioOutputOptions options)
{
    output = std::make_unique<LinuxAudioOutput>(lines, options);
    output->start(source);
}

bool SoundSession::isHeard() const
{
    return eventually(
        [this] { return PatternSource::longestRun(record(output->sampleRate())) >= kFlawlessFrames; });
}

bool SoundSession::plays(SoundServer server) const
{
    return eventually([this, server, before = output->state().cycles] {
        const AudioOutputState state = output->state();
        return state.server == server && (server == SoundServer::None || state.cycles > before);
    });
}

} // namespace tocca::platform::linux
