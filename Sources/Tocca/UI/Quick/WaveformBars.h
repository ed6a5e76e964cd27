#pragma once

#include "UI/NotchHUD/Waveform.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QVariantAnimation>

#include <array>

namespace tocca::ui {

/// The HUD's waveform: bars around the item's middle that ease to new heights with every pulse. Nothing runs at rest.
///
/// Units: `duration` in milliseconds, 0 where motion is unwanted.
class WaveformBars : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isExpanded MEMBER isExpanded_ NOTIFY targetChanged FINAL)
    Q_PROPERTY(double energy MEMBER energy_ NOTIFY targetChanged FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY colorChanged FINAL)
    Q_PROPERTY(int duration MEMBER duration_ NOTIFY durationChanged FINAL)

public:
    using Heights = std::array<double, kWaveformBars>;

    explicit WaveformBars(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    /// As they are shown now. Units: points.
    [[nodiscard]] const Heights& heights() const noexcept { return shown_; }

    Q_SIGNAL void targetChanged();
    Q_SIGNAL void colorChanged();
    Q_SIGNAL void durationChanged();

protected:
    void componentComplete() override;

private:
    void retarget();
    void showBetween(double progress);

    bool isExpanded_ = false;
    double energy_ = 0;
    QColor color_{Qt::black};
    int duration_ = 0;
    Heights from_{};
    Heights to_{};
    Heights shown_{};
    QVariantAnimation motion_;
};

} // namespace tocca::ui
