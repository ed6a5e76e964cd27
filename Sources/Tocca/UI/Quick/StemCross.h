#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace tocca::ui {

/// The cross on top of a key switch's stem, 12 points wide and high, in the middle of the item.
class StemCross : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY drawingChanged FINAL)

public:
    explicit StemCross(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    Q_SIGNAL void drawingChanged();

private:
    QColor color_{Qt::black};
};

} // namespace tocca::ui
