#include "UI/Symbols/Symbol.h"

#include "UI/Symbols/SymbolDrawings.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace tocca::ui {

Symbol::Symbol(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &Symbol::drawingChanged, this, &Symbol::update);
    setSize(16);
}

void Symbol::setSize(int size)
{
    if (size != size_) {
        size_ = size;
        setImplicitSize(size, size);
        Q_EMIT drawingChanged();
    }
}

QSGNode* Symbol::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/)
{
    const auto pixels = static_cast<int>(std::ceil(size_ * window()->effectiveDevicePixelRatio()));
    const QImage image = drawSymbol(name_, pixels, color_);
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
    shown->setRect(0, 0, size_, size_);
    return shown;
}

void Symbol::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemDevicePixelRatioHasChanged) {
        update();
    }
    QQuickItem::itemChange(change, value);
}

} // namespace tocca::ui
