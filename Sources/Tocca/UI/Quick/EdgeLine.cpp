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
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    const Light colour = Light::of(color_);
    for (int row = 0; row < pixels.height(); ++row) {
        const double top = (pixels.height() - row) / scale; // of the row, above the edge
        const double covered = std::clamp((kEdgeLineHeight - top) * scale + 1, 0.0, 1.0);
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row)); // NOLINT: what the image's format says
        for (int column = 0; column < pixels.width(); ++column) {
            const double at = (column + 0.5) / pixels.width();
            line[column] =
                (colour * (covered * edgeLineShareAt(at, ratio_))).pixel(); // NOLINT(*-pointer-arithmetic)
        }
    }
    return image;
}

} // namespace tocca::ui
