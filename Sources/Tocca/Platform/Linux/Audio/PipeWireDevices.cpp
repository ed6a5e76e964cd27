#include "Platform/Linux/Audio/PipeWireDevices.h"

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
           isOwnProcess(properties,
                        PW_KEY_APP_PROCESS_ID); // by way of pipewire-pulse, whose client it then is
}

} // namespace

struct PipeWireDevices::Connection {
    pw_context* context = nullptr;
    pw_core* core = nullptr;
    pw_registry* registry = nullptr;
    spa_hook coreListener{};
    spa_hook registryListener{};
    pw_core_events coreEvents{};
    pw_registry_events registryEvents{};
    int sync = 0;
};

/// A recording stream that is asked to tell about itself for as long as this lives.
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
    : loop_(loop)
    , observer_(std::move(observer))
    , retry_(loop, [this] { connect(); })
    , connection_(std::make_unique<Connection>())
{
    pw_core_events& core = connection_->coreEvents;
    core.version = PW_VERSION_CORE_EVENTS;
    core.error = [](void* self, std::uint32_t id, int, int, const char*) {
        if (id == PW_ID_CORE) {
            static_cast<PipeWireDevices*>(self)->lose();
        }
    };
    core.done = [](void* self, std::uint32_t id, int sequence) {
        auto* const devices = static_cast<PipeWireDevices*>(self);
        if (id == PW_ID_CORE && sequence == devices->connection_->sync) {
            devices->isEnumerated_ = true;
            devices->tell();
        }
    };
    pw_registry_events& registry = connection_->registryEvents;
    registry.version = PW_VERSION_REGISTRY_EVENTS;
    registry.global = [](void* self, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
                         const spa_dict* properties) {
        static_cast<PipeWireDevices*>(self)->appear(id, type, properties);
    };
    registry.global_remove = [](void* self, std::uint32_t id) {
        static_cast<PipeWireDevices*>(self)->vanish(id);
    };
}

PipeWireDevices::~PipeWireDevices()
{
    disconnect();
    if (connection_->context != nullptr) {
        pw_context_destroy(connection_->context);
    }
}

void PipeWireDevices::open()
{
    retry_.once(timing::kAtOnce);
}

void PipeWireDevices::lookNow()
{
    if (connection_->core == nullptr) {
        retry_.once(timing::kSoon);
    }
}

void PipeWireDevices::connect()
{
    disconnect();
    Connection& connection = *connection_;
    if (connection.context == nullptr) {
        connection.context = pw_context_new(loop_.native(), nullptr, 0);
    }
    if (connection.context != nullptr) {
        connection.core =
            pw_context_connect(connection.context, pw_properties_new(PW_KEY_APP_NAME, "Tocca", nullptr), 0);
    }
    if (connection.core == nullptr) {
        observer_(std::nullopt);
        retry_.once(timing::kRetry);
        return;
    }
    pw_core_add_listener(connection.core, &connection.coreListener, &connection.coreEvents, this);
    connection.registry = pw_core_get_registry(connection.core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(connection.registry, &connection.registryListener, &connection.registryEvents,
                             this);
    connection.sync = pw_core_sync(connection.core, PW_ID_CORE, 0);
}

void PipeWireDevices::disconnect()
{
    Connection& connection = *connection_;
    isEnumerated_ = false;
    recorders_.clear();
    graph_.clear();
    if (connection.registry != nullptr) {
        spa_hook_remove(&connection.registryListener);
        pw_proxy_destroy(reinterpret_cast<pw_proxy*>(std::exchange(connection.registry, nullptr)));
    }
    if (connection.core != nullptr) {
        spa_hook_remove(&connection.coreListener);
        pw_core_disconnect(std::exchange(connection.core, nullptr));
    }
}

void PipeWireDevices::lose()
{
    // The connection cannot be taken down from inside its own events, and the server needs a moment to come back.
    isEnumerated_ = false;
    observer_(std::nullopt);
    retry_.once(timing::kSoon);
}

void PipeWireDevices::appear(std::uint32_t id, const char* type, const spa_dict* properties)
{
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        const NodeKind kind = kindOfNode(textOf(properties, PW_KEY_MEDIA_CLASS));
        graph_.addNode(id, kind, std::string(textOf(properties, PW_KEY_NODE_NAME)));
        if (kind == NodeKind::Recorder) {
            recorders_[id] = std::make_unique<Recorder>(*this, connection_->registry, id);
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
    // Properties that have not changed are there all the same, but empty.
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
