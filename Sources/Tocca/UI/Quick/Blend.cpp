#include "UI/Quick/Blend.h"

namespace tocca::ui {

QColor Blend::alpha(const QColor& color, double alpha)
{
    QColor result = color;
    result.setAlphaF(static_cast<float>(alpha));
    return result;
}

QColor Blend::tint(const QColor& base, const QColor& over)
{
    const float share = over.alphaF();
    const auto mixed = [share](float front, float back) { return front * share + back * (1 - share); };
    return QColor::fromRgbF(mixed(over.redF(), base.redF()), mixed(over.greenF(), base.greenF()),
                            mixed(over.blueF(), base.blueF()), mixed(1, base.alphaF()));
}

} // namespace tocca::ui
