#include "UI/Quick/WaveformBars.h"

#include <QEasingCurve>
#include <QPainter>

#include <cmath>

namespace tocca::ui {

namespace {

constexpr qreal kBarWidth = 2.5;
constexpr qreal kSpacing = 2.5;
constexpr qreal kTallest = 17;

} // namespace

WaveformBars::WaveformBars(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(std::ceil(kWaveformBars * kBarWidth + (kWaveformBars - 1) * kSpacing), kTallest);
    setAntialiasing(true);
    motion_.setStartValue(0.0);
    motion_.setEndValue(1.0);
    motion_.setEasingCurve(QEasingCurve::OutSine);
    connect(&motion_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& progress) { showBetween(progress.toDouble()); });
    connect(this, &WaveformBars::targetChanged, this, &WaveformBars::retarget);
    connect(this, &WaveformBars::colorChanged, this, [this] { update(); });
}

void WaveformBars::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    retarget();
    motion_.stop();
    showBetween(1);
}

void WaveformBars::retarget()
{
    from_ = shown_;
    for (int bar = 0; bar < kWaveformBars; ++bar) {
        to_.at(static_cast<std::size_t>(bar)) = waveformBarHeight(bar, energy_, isExpanded_);
    }
    motion_.stop();
    if (duration_ > 0) {
        motion_.setDuration(duration_);
        motion_.start();
    } else {
        showBetween(1);
    }
}

void WaveformBars::showBetween(double progress)
{
    for (std::size_t bar = 0; bar < shown_.size(); ++bar) {
        shown_.at(bar) = std::lerp(from_.at(bar), to_.at(bar), progress);
    }
    update();
}

void WaveformBars::paint(QPainter* painter)
{
    constexpr qreal kCorner = 1;
    painter->setPen(Qt::NoPen);
    painter->setBrush(color_);
    qreal x = 0;
    for (const double barHeight : shown_) {
        painter->drawRoundedRect(QRectF(x, (height() - barHeight) / 2, kBarWidth, barHeight), kCorner,
                                 kCorner);
        x += kBarWidth + kSpacing;
    }
}

} // namespace tocca::ui
