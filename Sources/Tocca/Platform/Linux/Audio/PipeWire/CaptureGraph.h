#pragma once

#include "Platform/AudioDevices.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::platform::linux {

/// What part a node of PipeWire's graph plays in recording.
enum class NodeKind {
    Microphone, ///< sound comes from it: a device, or what other programs offer as one
    Playback,   ///< a loudspeaker, or a program that plays: recording it records no microphone
    Recorder,   ///< a program's recording stream
    Other,
};

[[nodiscard]] NodeKind kindOfNode(std::string_view mediaClass);

/// The nodes and links of PipeWire, by the registry's numbers: works out which microphones are recorded from.
/// Threads: one at a time.
class CaptureGraph {
public:
    struct Link {
        std::uint32_t from = 0; ///< the node that gives
        std::uint32_t to = 0;   ///< the node that takes
    };

    /// What a recorder's own properties tell.
    struct RecorderTraits {
        std::uint32_t client = 0;
        bool isBystander = false; ///< a meter, a monitor or half of an effect: it listens without recording
    };

    void addNode(std::uint32_t id, NodeKind kind, std::string name);
    void addLink(std::uint32_t id, Link link);

    /// A client of this very process; what it records never counts.
    void addOwnClient(std::uint32_t id);

    void setRunning(std::uint32_t recorder, bool isRunning);
    void setTraits(std::uint32_t recorder, RecorderTraits traits);
    void remove(std::uint32_t id);
    void clear();

    /// Every microphone, and a device of its own for each recorder whose source is unknown.
    [[nodiscard]] std::vector<AudioDevice> devices() const;

    /// Whether there is anything to play to or to record from.
    [[nodiscard]] bool hasDevices() const;

private:
    struct Node {
        NodeKind kind = NodeKind::Other;
        std::string name;
        bool isRunning = false;
        std::optional<RecorderTraits> traits; // from when the recorder has told
    };

    [[nodiscard]] bool counts(const Node& node) const;

    std::map<std::uint32_t, Node> nodes_;
    std::map<std::uint32_t, Link> links_;
    std::set<std::uint32_t> ownClients_;
};

} // namespace tocca::platform::linux
