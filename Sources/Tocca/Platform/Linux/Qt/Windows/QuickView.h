#pragma once

#include "Platform/Desktop/View.h"

#include <functional>
#include <utility>

class QQuickItem;

namespace tocca::platform::linux {

/// A view that makes its QML item when its window is first shown, so that nothing is loaded for what nobody opens.
///
/// Threads: main.
/// Lifetime: the window owns the item.
class QuickView : public View {
public:
    /// Makes the content below `parent`; null when it cannot be made. The window gives the item its size.
    using Factory = std::function<QQuickItem*(QQuickItem& parent)>;

    explicit QuickView(Factory factory)
        : factory_(std::move(factory))
    {}

    [[nodiscard]] QQuickItem* makeItem(QQuickItem& parent) const { return factory_(parent); }

private:
    Factory factory_;
};

} // namespace tocca::platform::linux
