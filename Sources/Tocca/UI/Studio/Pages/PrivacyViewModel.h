#pragma once

#include "App/SmartMuteManager.h"
#include "UI/Controllers.h"
#include "UI/Quick/UiProperty.h"

#include <QQmlEngine>

namespace tocca::ui {

/// What the privacy page shows and sets. Threads: main.
class PrivacyViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(QString muteStatus READ muteStatus NOTIFY smartMuteReasonChanged FINAL)

    app::SmartMuteManager& smartMute_;

    UI_PROPERTY(bool, autoMuteOnCalls, smartMute_.autoMuteOnCalls)
    UI_PROPERTY(bool, muteOnSensitiveApps, smartMute_.muteOnSensitiveApps)
    UI_PROPERTY(bool, isSmartMuted, smartMute_.isSmartMuted)
    UI_PROPERTY(QString, smartMuteReason, smartMute_.smartMuteReason)

public:
    explicit PrivacyViewModel(const Controllers& controllers);

    /// Why there is silence, in words also when nothing gave a reason.
    [[nodiscard]] QString muteStatus() const;

    Q_INVOKABLE void toggleAutoMuteOnCalls();
    Q_INVOKABLE void toggleMuteOnSensitiveApps();
};

} // namespace tocca::ui
