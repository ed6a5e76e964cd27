#pragma once

#include <QColor>
#include <QQmlEngine>

namespace tocca::ui {

/// Colours made of others, as `Qt.alpha` and `Qt.tint` make them; being typed, they are compiled ahead of time.
class Blend : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// `color` with another opacity, 0…1.
    [[nodiscard]] Q_INVOKABLE static QColor alpha(const QColor& color, double alpha);

    /// The colour `share` of the way from one to the other, 0…1; beyond, the nearer of the two.
    [[nodiscard]] Q_INVOKABLE static QColor between(const QColor& from, const QColor& to, double share);

    /// `over`, as opaque as it is, on top of `base`.
    [[nodiscard]] Q_INVOKABLE static QColor tint(const QColor& base, const QColor& over);
};

} // namespace tocca::ui
