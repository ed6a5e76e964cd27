#pragma once

#include "Platform/Desktop/StatusBar.h"

namespace tocca::app {

/// The status icon: the outline of a keycap with a plus-shaped stem in its middle, in `size` points.
[[nodiscard]] platform::TemplateIcon statusIcon(platform::Size size = {18, 18});

} // namespace tocca::app
