#pragma once

#include "Support/Spring.h"

#include <QAbstractAnimation>
#include <QElapsedTimer>
#include <QQmlEngine>

namespace tocca::ui {

/// Follows `to` by a damped spring: bind a property to `value`. Assigning `to` while it moves keeps the velocity; nothing runs at rest.
///
/// Units: `response` in seconds. `to` and `value` in the property's own.
class SpringFollow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY toChanged FINAL)
    Q_PROPERTY(double value READ value NOTIFY valueChanged FINAL)
    Q_PROPERTY(double response MEMBER response_ FINAL)
    Q_PROPERTY(double dampingFraction MEMBER dampingFraction_ FINAL)
    Q_PROPERTY(bool enabled MEMBER isEnabled_ FINAL)

public:
    explicit SpringFollow(QObject* parent = nullptr);
    ~SpringFollow() override;

    [[nodiscard]] double to() const { return spring_.target(); }

    /// The first assignment, and every one while `enabled` is false, takes effect at once.
    void setTo(double to);

    [[nodiscard]] double value() const { return value_; }

    Q_SIGNAL void toChanged();
    Q_SIGNAL void valueChanged();

private:
    class Ticker;

    [[nodiscard]] double now() const { return static_cast<double>(clock_.nsecsElapsed()) * 1e-9; }

    void tick();
    void setValue(double value);

    QElapsedTimer clock_;
    Spring spring_{0};
    double value_ = 0;
    double response_ = 0.3;
    double dampingFraction_ = 1;
    bool isEnabled_ = true;
    bool hasTarget_ = false;
    Ticker* ticker_;
};

} // namespace tocca::ui
