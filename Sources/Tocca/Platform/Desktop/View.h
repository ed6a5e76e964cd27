#pragma once

namespace tocca::platform {

/// The content of a window, panel or popover: made by the interface, shown by the platform, opaque to the controllers between
/// them. Threads: main. Lifetime: owned by what shows it.
class View {
public:
    View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View() = default;
};

} // namespace tocca::platform
