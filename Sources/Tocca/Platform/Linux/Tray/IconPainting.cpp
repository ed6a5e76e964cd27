#include "Platform/Linux/Tray/IconPainting.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tocca::platform::linux {

namespace {

/// The icon as one area. The icon's y runs upwards, the painter's downwards.
QPainterPath outline(const TemplateIcon& icon)
{
    QPainterPath outline;
    for (const IconShape& shape : icon.shapes) {
        const Rect& rect = shape.rect;
        QPainterPath path;
        path.addRoundedRect({rect.x, icon.size.height - rect.maxY(), rect.width, rect.height},
                            shape.cornerRadius, shape.cornerRadius);
        if (shape.strokeWidth > 0) {
            QPainterPathStroker stroker;
            stroker.setWidth(shape.strokeWidth);
            path = stroker.createStroke(path);
        }
        outline = outline.united(path);
    }
    return outline;
}

} // namespace

QImage paintIcon(const TemplateIcon& icon, int pixels, const QColor& colour)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (icon.size.width <= 0 || icon.size.height <= 0) {
        return image;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = pixels / std::max(icon.size.width, icon.size.height);
    painter.translate((pixels - icon.size.width * scale) / 2, (pixels - icon.size.height * scale) / 2);
    painter.scale(scale, scale);
    const QPainterPath path = outline(icon);
    const QColor rim(0, 0, 0, 70);
    constexpr double kRimWidth = 1.0;
    painter.strokePath(path, QPen(rim, kRimWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, colour);
    return image;
}

} // namespace tocca::platform::linux
