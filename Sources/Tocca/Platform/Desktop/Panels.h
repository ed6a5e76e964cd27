#pragma once

#include "Platform/Desktop/Geometry.h"
#include "Platform/Desktop/View.h"

#include <cstdint>
#include <memory>

namespace tocca::platform {

/// How far above ordinary windows a panel lies.
enum class WindowLevel : std::uint8_t { floating = 3, statusBar = 25 };

/// A borderless, shadowless, transparent overlay. It never takes the focus, lets every click through to what lies beneath, is on every
/// desktop, and is absent from task bar and switcher. Where nothing composes windows it stays hidden, whatever is asked.
///
/// Threads: main.
class Panel {
public:
    virtual ~Panel() = default;

    virtual void setFrame(const Rect& frame) = 0;

    /// Shows the panel in front of everything at or below its level, without activating the program.
    virtual void orderFront() = 0;
    virtual void orderOut() = 0;

    /// Whether it was ordered front and not out since.
    [[nodiscard]] virtual bool isVisible() const = 0;
};

/// Makes overlays. Threads: main.
class Panels {
public:
    virtual ~Panels() = default;

    /// A panel that is not shown yet and keeps `content` for as long as it lives.
    [[nodiscard]] virtual std::unique_ptr<Panel> make(const Rect& frame, WindowLevel level,
                                                      std::unique_ptr<View> content) = 0;
};

} // namespace tocca::platform
