#pragma once

#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Quick/UiProperty.h"

#include <QQmlEngine>

namespace tocca::ui {

/// The model of the HUD's view.
///
/// Order: `motionChanged` is emitted before `isExpandedChanged`, so that a spring knows how to move when it is told where to.
/// Threads: main.
class NotchHUDViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by makeOverlayView")
    Q_PROPERTY(bool isExpanded READ isExpanded NOTIFY isExpandedChanged FINAL)
    Q_PROPERTY(bool isAnimated READ isAnimated NOTIFY motionChanged FINAL)
    Q_PROPERTY(double response READ response NOTIFY motionChanged FINAL)
    Q_PROPERTY(double dampingFraction READ dampingFraction NOTIFY motionChanged FINAL)
    Q_PROPERTY(QString speed READ speed NOTIFY speedChanged FINAL)
    Q_PROPERTY(bool isFast READ isFast NOTIFY speedChanged FINAL)

public:
    static constexpr const char* kFile = "NotchHUD/NotchHUDContentView.qml";

    NotchHUDViewModel(NotchAcousticHUDController& controller, QObject* parent);

    [[nodiscard]] bool isExpanded() const { return controller_.isExpanded.get(); }

    /// Switched off, the HUD is closed at once.
    [[nodiscard]] bool isAnimated() const { return controller_.isEnabled.get(); }

    [[nodiscard]] double response() const { return motion().response; }

    [[nodiscard]] double dampingFraction() const { return motion().dampingFraction; }

    /// Words per minute.
    [[nodiscard]] QString speed() const { return QString::number(controller_.currentWPM.get()); }

    /// Whether the typing speed is to stand out.
    [[nodiscard]] bool isFast() const;

    Q_SIGNAL void isExpandedChanged();
    Q_SIGNAL void motionChanged();
    Q_SIGNAL void speedChanged();

private:
    [[nodiscard]] const SpringParameters& motion() const;

    NotchAcousticHUDController& controller_;
    Subscription isExpandedLink_;
    Subscription speedLink_;

    UI_PROPERTY(QString, switchName, controller_.switchName)
    UI_PROPERTY(double, currentEnergy, controller_.currentEnergy)
};

} // namespace tocca::ui
