#include "Platform/Linux/Audio/PipeWire/PipeWireConnection.h"

#include <pipewire/pipewire.h>

#include <utility>

namespace tocca::platform::linux {

struct PipeWireConnection::Handles {
    pw_context* context = nullptr;
    pw_core* core = nullptr;
    pw_registry* registry = nullptr;
    spa_hook coreListener{};
    spa_hook registryListener{};
    pw_core_events coreEvents{};
    pw_registry_events registryEvents{};
    int sync = 0;
};

PipeWireConnection::PipeWireConnection(std::function<pw_context*()> makeContext, Observer observer)
    : makeContext_(std::move(makeContext))
    , observer_(std::move(observer))
    , handles_(std::make_unique<Handles>())
{
    pw_core_events& core = handles_->coreEvents;
    core.version = PW_VERSION_CORE_EVENTS;
    core.error = [](void* self, std::uint32_t id, int, int, const char*) {
        if (id == PW_ID_CORE) {
            static_cast<PipeWireConnection*>(self)->observer_.lost();
        }
    };
    core.done = [](void* self, std::uint32_t id, int sequence) {
        const auto* const connection = static_cast<PipeWireConnection*>(self);
        if (id == PW_ID_CORE && sequence == connection->handles_->sync) {
            connection->observer_.enumerated();
        }
    };
    pw_registry_events& registry = handles_->registryEvents;
    registry.version = PW_VERSION_REGISTRY_EVENTS;
    registry.global = [](void* self, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
                         const spa_dict* properties) {
        static_cast<PipeWireConnection*>(self)->observer_.appeared(id, type, properties);
    };
    registry.global_remove = [](void* self, std::uint32_t id) {
        static_cast<PipeWireConnection*>(self)->observer_.vanished(id);
    };
}

PipeWireConnection::~PipeWireConnection()
{
    disconnect();
    if (handles_->context != nullptr) {
        pw_context_destroy(handles_->context);
    }
}

bool PipeWireConnection::connect(pw_properties* properties)
{
    disconnect();
    Handles& handles = *handles_;
    if (handles.context == nullptr) {
        handles.context = makeContext_();
    }
    if (handles.context == nullptr) {
        pw_properties_free(properties);
        return false;
    }
    handles.core = pw_context_connect(handles.context, properties, 0);
    if (handles.core == nullptr) {
        return false;
    }
    pw_core_add_listener(handles.core, &handles.coreListener, &handles.coreEvents, this);
    handles.registry = pw_core_get_registry(handles.core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(handles.registry, &handles.registryListener, &handles.registryEvents, this);
    handles.sync = pw_core_sync(handles.core, PW_ID_CORE, 0);
    return true;
}

void PipeWireConnection::disconnect()
{
    Handles& handles = *handles_;
    if (handles.registry != nullptr) {
        spa_hook_remove(&handles.registryListener);
        pw_proxy_destroy(reinterpret_cast<pw_proxy*>(std::exchange(handles.registry, nullptr)));
    }
    if (handles.core != nullptr) {
        spa_hook_remove(&handles.coreListener);
        pw_core_disconnect(std::exchange(handles.core, nullptr));
    }
}

pw_core* PipeWireConnection::core() const noexcept
{
    return handles_->core;
}

pw_registry* PipeWireConnection::registry() const noexcept
{
    return handles_->registry;
}

} // namespace tocca::platform::linux
