#pragma once

#include "UI/Quick/PixelItem.h"

#include <QColor>

namespace tocca::ui {

/// The bright line at the very bottom of the item, strongest at `ratio` of its width. The picture is that of full strength.
class EdgeLine : public tocca::ui::PixelItem { // the QML compiler knows a base by its whole name only
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(double ratio MEMBER ratio_ NOTIFY drawingChanged FINAL)

public:
    explicit EdgeLine(QQuickItem* parent = nullptr);

    Q_SIGNAL void drawingChanged();

protected:
    [[nodiscard]] QImage draw(const QSize& pixels, qreal scale) const override;

private:
    QColor color_{Qt::white};
    double ratio_ = 0.5;
};

} // namespace tocca::ui
