#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

namespace tocca::ui {

/// The outline of a key switch's stem: a rounded square around a cross. Units: `lineWidth` in points.
class SwitchStemShape : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(qreal lineWidth MEMBER lineWidth_ NOTIFY drawingChanged FINAL)

public:
    explicit SwitchStemShape(QQuickItem* parent = nullptr);

    /// Three subpaths. The bars scale with the width alone, so the cross stays square.
    [[nodiscard]] static QPainterPath path(const QRectF& in);

    void paint(QPainter* painter) override;

    Q_SIGNAL void drawingChanged();

private:
    QColor color_{Qt::black};
    qreal lineWidth_ = 1.5;
};

} // namespace tocca::ui
