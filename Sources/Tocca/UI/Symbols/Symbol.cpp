#include "UI/Symbols/Symbol.h"

#include "UI/Symbols/SymbolDrawings.h"

namespace tocca::ui {

Symbol::Symbol(QQuickItem* parent)
    : PixelItem(parent)
{
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

QImage Symbol::draw(const QSize& pixels, qreal /*scale*/) const
{
    return drawSymbol(name_, pixels.width(), color_);
}

} // namespace tocca::ui
