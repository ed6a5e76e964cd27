#include "UI/Quick/Blend.h"

#include <algorithm>

namespace tocca::ui {

QColor Blend::alpha(const QColor& color, double alpha)
{
    QColor result = color;
    result.setAlphaF(static_cast<float>(alpha));
    return result;
}

QColor Blend::between(const QColor& from, const QColor& to, double share)
{
    const auto way = static_cast<float>(std::clamp(share, 0.0, 1.0));
    const auto mixed = [way](float start, float end) { return start + (end - start) * way; };
    return QColor::fromRgbF(mixed(from.redF(), to.redF()), mixed(from.greenF(), to.greenF()),
                            mixed(from.blueF(), to.blueF()), mixed(from.alphaF(), to.alphaF()));
}

QColor Blend::tint(const QColor& base, const QColor& over)
{
    const float share = over.alphaF();
    const auto mixed = [share](float front, float back) { return front * share + back * (1 - share); };
    return QColor::fromRgbF(mixed(over.redF(), base.redF()), mixed(over.greenF(), base.greenF()),
                            mixed(over.blueF(), base.blueF()), mixed(1, base.alphaF()));
}

} // namespace tocca::ui
