#pragma once

#include "Platform/Desktop/Geometry.h"
#include "Platform/Desktop/View.h"

#include <memory>

namespace tocca::platform {

class StatusItem;

/// A small window that hangs at a status item and closes when the person clicks elsewhere or presses Escape. Threads: main.
class Popover {
public:
    virtual ~Popover() = default;

    virtual void setContentSize(const Size& size) = 0;
    virtual void setBackground(const Colour& background) = 0;

    /// Shows `content` from now on and keeps it. A popover without content shows nothing.
    virtual void setContent(std::unique_ptr<View> content) = 0;

    /// Shows it at the item's icon, or where the pointer is when the desktop does not tell where that lies, with the keyboard.
    virtual void show(StatusItem& item) = 0;
    virtual void close() = 0;
    [[nodiscard]] virtual bool isShown() const = 0;
};

/// Makes popovers. Threads: main.
class Popovers {
public:
    virtual ~Popovers() = default;
    [[nodiscard]] virtual std::unique_ptr<Popover> make() = 0;
};

} // namespace tocca::platform
