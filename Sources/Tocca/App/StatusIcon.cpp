#include "App/StatusIcon.h"

namespace tocca::app {

platform::TemplateIcon statusIcon(platform::Size size)
{
    const double w = size.width;
    const double h = size.height;
    return {.size = size,
            .shapes = {
                {.rect = {1.5, 1.5, w - 3, h - 3}, .cornerRadius = 3.5, .strokeWidth = 1.3},
                {.rect = {w / 2 - 4.2, h / 2 - 1, 8.4, 2}, .cornerRadius = 0.6},
                {.rect = {w / 2 - 1, h / 2 - 4.2, 2, 8.4}, .cornerRadius = 0.6},
            }};
}

} // namespace tocca::app
