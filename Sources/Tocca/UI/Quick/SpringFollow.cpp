#include "UI/Quick/SpringFollow.h"

namespace tocca::ui {

/// Ticks with Qt's animations for as long as the spring moves. Its own time comes in steps of 16 ms, so it is not used.
class SpringFollow::Ticker : public QAbstractAnimation {
public:
    explicit Ticker(SpringFollow& owner)
        : QAbstractAnimation(&owner)
        , owner_(owner)
    {}

    [[nodiscard]] int duration() const override { return -1; }

protected:
    void updateCurrentTime(int /*milliseconds*/) override { owner_.tick(); }

private:
    SpringFollow& owner_;
};

SpringFollow::SpringFollow(QObject* parent)
    : QObject(parent)
    , ticker_(new Ticker(*this))
{
    clock_.start();
}

SpringFollow::~SpringFollow() = default;

void SpringFollow::setTo(double to)
{
    if (hasTarget_ && to == spring_.target()) {
        return;
    }
    if (hasTarget_ && isEnabled_) {
        spring_.retarget(to, {response_, dampingFraction_}, now());
        ticker_->start();
    } else {
        spring_.snapTo(to);
        ticker_->stop();
        setValue(to);
    }
    hasTarget_ = true;
    Q_EMIT toChanged();
}

void SpringFollow::tick()
{
    const double time = now();
    constexpr double kNear = 0.0005;
    if (spring_.isSettledAt(time, kNear)) {
        spring_.snapTo(spring_.target());
        ticker_->stop();
        setValue(spring_.target());
    } else {
        setValue(spring_.valueAt(time));
    }
}

void SpringFollow::setValue(double value)
{
    if (value != value_) {
        value_ = value;
        Q_EMIT valueChanged();
    }
}

} // namespace tocca::ui
