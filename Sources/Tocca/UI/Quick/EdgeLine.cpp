#include "UI/Quick/EdgeLine.h"

#include "UI/Quick/Light.h"
#include "UI/Underglow/Glow.h"

#include <algorithm>
#include <cmath>

namespace tocca::ui {

EdgeLine::EdgeLine(QQuickItem* parent)
    : PixelItem(parent)
{
    setImplicitHeight(std::ceil(kEdgeLineHeight));
    connect(this, &EdgeLine::drawingChanged, this, &EdgeLine::update);
}

QImage EdgeLine::draw(const QSize& pixels, qreal scale) const
{
    const Light colour = Light::of(color_);
    return picture(pixels, [&](int column, int row) {
        const double top = (pixels.height() - row) / scale; // of the row, above the edge
        const double covered = std::clamp((kEdgeLineHeight - top) * scale + 1, 0.0, 1.0);
        return (colour * (covered * edgeLineShareAt((column + 0.5) / pixels.width(), ratio_))).pixel();
    });
}

} // namespace tocca::ui
