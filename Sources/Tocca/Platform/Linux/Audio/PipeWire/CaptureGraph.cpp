#include "Platform/Linux/Audio/PipeWire/CaptureGraph.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::linux {

NodeKind kindOfNode(std::string_view mediaClass)
{
    if (mediaClass == "Stream/Input/Audio") {
        return NodeKind::Recorder;
    }
    // Virtual devices have a longer class: "Audio/Source/Virtual".
    if (mediaClass.starts_with("Audio/Source") || mediaClass == "Audio/Duplex") {
        return NodeKind::Microphone;
    }
    if (mediaClass.starts_with("Audio/Sink") || mediaClass == "Stream/Output/Audio") {
        return NodeKind::Playback;
    }
    return NodeKind::Other;
}

void CaptureGraph::addNode(std::uint32_t id, NodeKind kind, std::string name)
{
    nodes_[id] = {.kind = kind, .name = std::move(name), .traits = {}};
}

void CaptureGraph::addLink(std::uint32_t id, Link link)
{
    links_[id] = link;
}

void CaptureGraph::addOwnClient(std::uint32_t id)
{
    ownClients_.insert(id);
}

void CaptureGraph::setRunning(std::uint32_t recorder, bool isRunning)
{
    if (const auto node = nodes_.find(recorder); node != nodes_.end()) {
        node->second.isRunning = isRunning;
    }
}

void CaptureGraph::setTraits(std::uint32_t recorder, RecorderTraits traits)
{
    if (const auto node = nodes_.find(recorder); node != nodes_.end()) {
        node->second.traits = traits;
    }
}

void CaptureGraph::remove(std::uint32_t id)
{
    nodes_.erase(id);
    links_.erase(id);
    ownClients_.erase(id);
}

void CaptureGraph::clear()
{
    nodes_.clear();
    links_.clear();
    ownClients_.clear();
}

bool CaptureGraph::counts(const Node& node) const
{
    return node.kind == NodeKind::Recorder && node.isRunning && node.traits && !node.traits->isBystander &&
           !ownClients_.contains(node.traits->client);
}

std::vector<AudioDevice> CaptureGraph::devices() const
{
    std::set<std::uint32_t> recorded;
    std::set<std::uint32_t> unexplained;
    for (const auto& [number, link] : links_) {
        const auto recorder = nodes_.find(link.to);
        if (recorder == nodes_.end() || !counts(recorder->second)) {
            continue;
        }
        const auto source = nodes_.find(link.from);
        const NodeKind kind = source == nodes_.end() ? NodeKind::Other : source->second.kind;
        if (kind == NodeKind::Microphone) {
            recorded.insert(link.from);
        } else if (kind != NodeKind::Playback) {
            unexplained.insert(link.to);
        }
    }
    std::vector<AudioDevice> devices;
    for (const auto& [id, node] : nodes_) {
        if (node.kind == NodeKind::Microphone) {
            devices.push_back(
                {.name = node.name, .hasInputStreams = true, .isRunningSomewhere = recorded.contains(id)});
        } else if (unexplained.contains(id)) {
            devices.push_back({.name = node.name, .hasInputStreams = true, .isRunningSomewhere = true});
        }
    }
    return devices;
}

bool CaptureGraph::hasDevices() const
{
    return std::any_of(nodes_.begin(), nodes_.end(), [](const auto& entry) {
        // The session manager makes a dummy of this name when there is nothing to play to.
        return entry.second.kind == NodeKind::Microphone ||
               (entry.second.kind == NodeKind::Playback && entry.second.name != "auto_null");
    });
}

} // namespace tocca::platform::linux
