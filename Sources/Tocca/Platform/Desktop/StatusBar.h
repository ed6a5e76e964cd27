#pragma once

#include "Platform/Desktop/Geometry.h"

#include <functional>
#include <memory>
#include <vector>

namespace tocca::platform {

/// A rounded rectangle of an icon, filled, or stroked when `strokeWidth` is not 0. Units: points.
struct IconShape {
    Rect rect;
    double cornerRadius = 0;
    double strokeWidth = 0;

    bool operator==(const IconShape&) const = default;
};

/// An icon in one colour, which is the desktop's choice.
struct TemplateIcon {
    Size size;
    std::vector<IconShape> shapes;

    bool operator==(const TemplateIcon&) const = default;
};

/// This program's place among the desktop's status icons. Threads: main, calls included.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// False where the item can have no icon or action at all. A desktop whose tray comes later does have a button.
    [[nodiscard]] virtual bool hasButton() const = 0;
    virtual void setIcon(const TemplateIcon& icon) = 0;

    /// What a click on the icon does.
    virtual void setAction(std::function<void()> action) = 0;
};

/// The desktop's tray. Threads: main.
class StatusBar {
public:
    virtual ~StatusBar() = default;
    [[nodiscard]] virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
};

} // namespace tocca::platform
