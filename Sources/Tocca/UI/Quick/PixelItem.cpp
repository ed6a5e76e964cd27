#include "UI/Quick/PixelItem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace tocca::ui {

PixelItem::PixelItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

QSGNode* PixelItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/)
{
    const qreal scale = window()->effectiveDevicePixelRatio();
    const QSize pixels(static_cast<int>(std::ceil(width() * scale)),
                       static_cast<int>(std::ceil(height() * scale)));
    const QImage image = pixels.isEmpty() ? QImage() : draw(pixels, scale);
    if (image.isNull()) {
        delete node;
        return nullptr;
    }
    auto* shown = static_cast<QSGImageNode*>(node);
    if (shown == nullptr) {
        shown = window()->createImageNode();
        shown->setOwnsTexture(true);
        shown->setFiltering(QSGTexture::Linear);
    }
    shown->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
    shown->setRect(0, 0, pixels.width() / scale, pixels.height() / scale);
    return shown;
}

void PixelItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemDevicePixelRatioHasChanged) {
        update();
    }
    QQuickItem::itemChange(change, value);
}

} // namespace tocca::ui
