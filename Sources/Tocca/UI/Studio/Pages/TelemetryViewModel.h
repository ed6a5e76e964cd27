#pragma once

#include "Keyboard/KeyboardMonitor.h"
#include "UI/Controllers.h"
#include "UI/Quick/UiProperty.h"

#include <QQmlEngine>

namespace tocca::ui {

/// What the telemetry page shows of the running program. Threads: main.
class TelemetryViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(QString keystrokesRecorded READ keystrokesRecorded NOTIFY keystrokeCountChanged FINAL)

    keyboard::KeyboardMonitor& monitor_;

    UI_PROPERTY(qint64, keystrokeCount, monitor_.keystrokeCount)

public:
    explicit TelemetryViewModel(const Controllers& controllers)
        : monitor_(controllers.keyboardMonitor)
    {}

    /// All digits of it.
    [[nodiscard]] QString keystrokesRecorded() const { return QString::number(keystrokeCount()); }
};

} // namespace tocca::ui
