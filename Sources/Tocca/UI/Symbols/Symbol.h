#pragma once

#include "UI/Quick/PixelItem.h"

#include <QColor>
#include <QImage>

namespace tocca::ui {

/// Shows a symbol of the program's family, drawn for the screen's own pixels. Units: `size` in points, the side of its square.
class Symbol : public tocca::ui::PixelItem { // the QML compiler knows it by its full name
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER name_ NOTIFY drawingChanged FINAL)
    Q_PROPERTY(int size MEMBER size_ WRITE setSize NOTIFY drawingChanged FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY drawingChanged FINAL)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    void setSize(int size);

    Q_SIGNAL void drawingChanged();

protected:
    [[nodiscard]] QImage draw(const QSize& pixels, qreal scale) const override;

private:
    QString name_;
    int size_ = 0;
    QColor color_{Qt::black};
};

} // namespace tocca::ui
