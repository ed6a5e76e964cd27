#pragma once

#include "UI/Quick/UiProperty.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QColor>
#include <QQmlEngine>

class QQuickItem;

namespace tocca::ui {

/// What the glow's view shows. Threads: main.
class SpatialUnderglowViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by makeSpatialUnderglowView")
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor secondaryColor READ secondaryColor NOTIFY themeChanged FINAL)

public:
    SpatialUnderglowViewModel(SpatialUnderglowController& controller, QObject* parent);

    [[nodiscard]] QColor primaryColor() const;
    [[nodiscard]] QColor secondaryColor() const;

    Q_SIGNAL void themeChanged();

private:
    SpatialUnderglowController& controller_;
    Subscription themeLink_;

    UI_PROPERTY(double, pulseXRatio, controller_.pulseXRatio)
    UI_PROPERTY(double, pulseOpacity, controller_.pulseOpacity)
};

/// Makes the glow's view for `controller`, which outlives it, inside `parent`.
[[nodiscard]] QQuickItem* makeSpatialUnderglowView(QQmlEngine& engine, SpatialUnderglowController& controller,
                                                   QQuickItem& parent);

} // namespace tocca::ui
