#pragma once

#include "Platform/Desktop/StatusBar.h"

#include <QColor>
#include <QImage>

namespace tocca::platform::linux {

/// Draws the icon into a transparent square of `pixels` with a faint dark rim, so that a light icon also shows on a light ground.
[[nodiscard]] QImage paintIcon(const TemplateIcon& icon, int pixels, const QColor& colour);

} // namespace tocca::platform::linux
