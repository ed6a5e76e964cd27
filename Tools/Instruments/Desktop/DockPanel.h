#pragma once

#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace tocca::instruments {

/// A desktop's panel along an edge of the screen, which keeps its room from other windows.
///
/// Units: pixels. Threads: one at a time. Errors: throws `std::runtime_error` without a server.
class DockPanel {
public:
    enum class Edge : std::uint8_t { top, bottom };

    DockPanel(Edge edge, int thickness);
    DockPanel(const DockPanel&) = delete;
    DockPanel& operator=(const DockPanel&) = delete;

    /// Takes the panel away.
    ~DockPanel();

    /// Waits until a button was pressed on the panel since the last call; false when none was by the deadline.
    [[nodiscard]] bool waitForPress();

private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
    std::uint32_t window_ = 0;
};

} // namespace tocca::instruments
