#pragma once

#include "App/SmartMuteManager.h"
#include "Audio/AudioEngine.h"
#include "Keyboard/KeyboardMonitor.h"
#include "UI/Controllers.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/StudioText.h"

#include <QQmlEngine>

namespace tocca::ui {

/// The model of what the program is doing, as the popover and the Studio window tell it: whether it hears the session, whether it is silenced, and
/// what was typed last. Threads: main.
class StatusViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the windows")
    Q_PROPERTY(QString muteStatus READ muteStatus NOTIFY smartMuteReasonChanged FINAL)
    Q_PROPERTY(QString keystrokes READ keystrokes NOTIFY keystrokeCountChanged FINAL)

    const Controllers controllers_;

    UI_PROPERTY(bool, hasAccessibilityPermission, controllers_.keyboardMonitor.hasAccessibilityPermission)
    UI_PROPERTY(qint64, keystrokeCount, controllers_.keyboardMonitor.keystrokeCount)
    UI_PROPERTY(bool, isSmartMuted, controllers_.smartMute.isSmartMuted)
    UI_PROPERTY(QString, smartMuteReason, controllers_.smartMute.smartMuteReason)
    UI_PROPERTY(double, keyVisualizerTrigger, controllers_.audioEngine.keyVisualizerTrigger)
    UI_PROPERTY(double, lastActiveKeyPan, controllers_.audioEngine.lastActiveKeyPan)

public:
    explicit StatusViewModel(const Controllers& controllers)
        : controllers_(controllers)
    {}

    /// Why there is silence, in words also when nothing gave a reason.
    [[nodiscard]] QString muteStatus() const
    {
        return toQString(studioText::muteStatus(controllers_.smartMute.smartMuteReason.get()));
    }

    /// All digits of their number.
    [[nodiscard]] QString keystrokes() const { return QString::number(keystrokeCount()); }
};

} // namespace tocca::ui
