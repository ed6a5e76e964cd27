#include "Platform/Linux/Audio/PipeWire/PipeWireDevices.h"

#include <pipewire/pipewire.h>

#include <charconv>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace tocca::platform::linux {

namespace {

std::string_view textOf(const spa_dict* properties, const char* key)
{
    const char* const value = properties != nullptr ? spa_dict_lookup(properties, key) : nullptr;
    return value != nullptr ? value : "";
}

std::uint32_t numberOf(const spa_dict* properties, const char* key)
{
    const std::string_view text = textOf(properties, key);
    std::uint32_t number = SPA_ID_INVALID;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool isTrue(const spa_dict* properties, const char* key)
{
    const std::string_view text = textOf(properties, key);
    return text == "true" || text == "1";
}

bool isOwnProcess(const spa_dict* properties, const char* key)
{
    return numberOf(properties, key) == static_cast<std::uint32_t>(::getpid());
}

bool isBystander(const spa_dict* properties)
{
    const std::string_view passive = textOf(properties, PW_KEY_NODE_PASSIVE);
    return isTrue(properties, PW_KEY_STREAM_MONITOR) || isTrue(properties, PW_KEY_STREAM_CAPTURE_SINK) ||
           isTrue(properties, "resample.peaks") || passive == "true" || passive.starts_with("in") ||
           !textOf(properties, PW_KEY_NODE_LINK_GROUP).empty() ||
           textOf(properties, PW_KEY_MEDIA_CATEGORY) == "Monitor" ||
           isOwnProcess(
               properties,
               PW_KEY_APP_PROCESS_ID); // a stream of ours through pipewire-pulse is that program's client
}

} // namespace

/// Listens to what a recording stream tells about itself.
class PipeWireDevices::Recorder {
public:
    Recorder(PipeWireDevices& owner, pw_registry* registry, std::uint32_t id)
        : owner_(owner)
        , id_(id)
        , node_(static_cast<pw_node*>(
              pw_registry_bind(registry, id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0)))
    {
        events_.version = PW_VERSION_NODE_EVENTS;
        events_.info = [](void* self, const pw_node_info* info) {
            auto* const recorder = static_cast<Recorder*>(self);
            recorder->owner_.describe(recorder->id_, *info);
        };
        if (node_ != nullptr) {
            pw_node_add_listener(node_, &listener_, &events_, this);
        }
    }

    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    ~Recorder()
    {
        if (node_ != nullptr) {
            spa_hook_remove(&listener_);
            pw_proxy_destroy(reinterpret_cast<pw_proxy*>(node_));
        }
    }

private:
    PipeWireDevices& owner_;
    const std::uint32_t id_;
    pw_node* const node_;
    spa_hook listener_{};
    pw_node_events events_{};
};

PipeWireDevices::PipeWireDevices(ControlLoop& loop, Observer observer)
    : DeviceServer(loop, std::move(observer))
    , connection_([&loop] { return pw_context_new(loop.native(), nullptr, 0); },
                  {.lost = [this] { lose(); },
                   .enumerated =
                       [this] {
                           isEnumerated_ = true;
                           resetDelay();
                           tell();
                       },
                   .appeared = [this](std::uint32_t id, const char* type,
                                      const spa_dict* properties) { appear(id, type, properties); },
                   .vanished = [this](std::uint32_t id) { vanish(id); }})
{}

PipeWireDevices::~PipeWireDevices() = default;

void PipeWireDevices::lookNow()
{
    if (connection_.core() == nullptr) {
        retrySoon();
    }
}

void PipeWireDevices::connect()
{
    isEnumerated_ = false;
    recorders_.clear();
    graph_.clear();
    if (!connection_.connect(pw_properties_new(PW_KEY_APP_NAME, "Tocca", nullptr))) {
        observer_(std::nullopt);
        retryLater();
    }
}

void PipeWireDevices::lose()
{
    isEnumerated_ = false;
    observer_(std::nullopt);
    retrySoon(); // which takes the connection down; its own events may not
}

void PipeWireDevices::appear(std::uint32_t id, const char* type, const spa_dict* properties)
{
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        const NodeKind kind = kindOfNode(textOf(properties, PW_KEY_MEDIA_CLASS));
        graph_.addNode(id, kind, std::string(textOf(properties, PW_KEY_NODE_NAME)));
        if (kind == NodeKind::Recorder) {
            recorders_[id] = std::make_unique<Recorder>(*this, connection_.registry(), id);
        }
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Link) == 0) {
        graph_.addLink(id, {.from = numberOf(properties, PW_KEY_LINK_OUTPUT_NODE),
                            .to = numberOf(properties, PW_KEY_LINK_INPUT_NODE)});
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Client) == 0) {
        if (isOwnProcess(properties, PW_KEY_SEC_PID)) {
            graph_.addOwnClient(id);
        }
        return;
    } else {
        return;
    }
    tell();
}

void PipeWireDevices::vanish(std::uint32_t id)
{
    recorders_.erase(id);
    graph_.remove(id);
    tell();
}

void PipeWireDevices::describe(std::uint32_t id, const pw_node_info& info)
{
    if ((info.change_mask & PW_NODE_CHANGE_MASK_STATE) != 0) {
        graph_.setRunning(id, info.state == PW_NODE_STATE_RUNNING);
    }
    // Without this mark the properties are there, but empty.
    if ((info.change_mask & PW_NODE_CHANGE_MASK_PROPS) != 0) {
        graph_.setTraits(
            id, {.client = numberOf(info.props, PW_KEY_CLIENT_ID), .isBystander = isBystander(info.props)});
    }
    tell();
}

void PipeWireDevices::tell()
{
    if (isEnumerated_) {
        observer_(Devices{.inputs = graph_.devices(), .hasAny = graph_.hasDevices()});
    }
}

} // namespace tocca::platform::linux
