#pragma once

#include <cstdint>
#include <functional>
#include <memory>

struct pw_context;
struct pw_core;
struct pw_properties;
struct pw_registry;
struct spa_dict;

namespace tocca::platform::linux {

/// A connection to PipeWire that tells which objects the server has, and can be made again after a loss.
///
/// Threads: control.
class PipeWireConnection {
public:
    /// Called from inside the connection's own events, which must not end the connection.
    struct Observer {
        std::function<void()> lost;
        std::function<void()> enumerated; ///< everything that was there at first has appeared
        std::function<void(std::uint32_t id, const char* type, const spa_dict* properties)> appeared;
        std::function<void(std::uint32_t id)> vanished;
    };

    /// `makeContext` is called once, by the first `connect`; the context then belongs to this object.
    PipeWireConnection(std::function<pw_context*()> makeContext, Observer observer);
    ~PipeWireConnection();
    PipeWireConnection(const PipeWireConnection&) = delete;
    PipeWireConnection& operator=(const PipeWireConnection&) = delete;

    /// Connects anew, as a client with `properties`, which it takes over. Errors: false when there is no server.
    [[nodiscard]] bool connect(pw_properties* properties);

    void disconnect();

    /// Both are null while there is no connection.
    [[nodiscard]] pw_core* core() const noexcept;
    [[nodiscard]] pw_registry* registry() const noexcept;

private:
    struct Handles;

    const std::function<pw_context*()> makeContext_;
    const Observer observer_;
    const std::unique_ptr<Handles> handles_;
};

} // namespace tocca::platform::linux
