#pragma once

#include "Audio/AudioEngine.h"
#include "UI/Controllers.h"
#include "UI/Studio/Stage/MiniKeyboardViewModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace tocca::ui {

/// The model of the stage: the keyboard, the sound that plays, and the text of the test pad, which nothing keeps. Threads: main.
class StageViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(tocca::ui::MiniKeyboardViewModel* keyboard READ keyboard CONSTANT FINAL)
    Q_PROPERTY(QString activeSwitchName READ activeSwitchName NOTIFY activeSwitchNameChanged FINAL)
    Q_PROPERTY(QString testTypingText READ testTypingText NOTIFY testTypingTextChanged FINAL)

public:
    explicit StageViewModel(const Controllers& controllers);

    [[nodiscard]] MiniKeyboardViewModel* keyboard() { return &keyboard_; }

    [[nodiscard]] QString activeSwitchName() const;

    [[nodiscard]] QString testTypingText() const { return testTypingText_; }

    Q_INVOKABLE void type(const QString& text);

    Q_SIGNAL void activeSwitchNameChanged();
    Q_SIGNAL void testTypingTextChanged();

private:
    audio::AudioEngine& engine_;
    MiniKeyboardViewModel keyboard_;
    QString testTypingText_;
    Subscription customPackLink_;
    Subscription switchTypeLink_;
};

} // namespace tocca::ui
