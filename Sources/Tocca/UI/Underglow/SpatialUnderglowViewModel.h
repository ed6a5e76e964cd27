#pragma once

#include "UI/Quick/UiProperty.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QColor>
#include <QQmlEngine>

namespace tocca::ui {

/// The model of the glow's view. Threads: main.
class SpatialUnderglowViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by makeOverlayView")
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor secondaryColor READ secondaryColor NOTIFY themeChanged FINAL)

public:
    static constexpr const char* kFile = "Underglow/SpatialUnderglowContentView.qml";

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

} // namespace tocca::ui
