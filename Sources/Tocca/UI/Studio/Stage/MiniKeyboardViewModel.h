#pragma once

#include "Support/Subscription.h"
#include "UI/Studio/Stage/MiniKeyboardRowViewModel.h"

#include <QObject>
#include <QQmlEngine>

#include <array>

namespace tocca::keyboard {
class KeyboardMonitor;
}

namespace tocca::ui {

/// The drawn keyboard, lit by the keys that are pressed anywhere. Units: points, given enough room. Threads: main.
class MiniKeyboardViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the stage")
    Q_PROPERTY(int rowCount MEMBER kRowCount CONSTANT FINAL)
    Q_PROPERTY(double fullWidth READ fullWidth CONSTANT FINAL)
    Q_PROPERTY(double fullHeight READ fullHeight CONSTANT FINAL)
    Q_PROPERTY(double padding MEMBER kPadding CONSTANT FINAL)
    Q_PROPERTY(double rowGap MEMBER kRowGap CONSTANT FINAL)
    Q_PROPERTY(double keyGap MEMBER kKeyGap CONSTANT FINAL)
    Q_PROPERTY(double keyHeight MEMBER kKeyHeight CONSTANT FINAL)

public:
    explicit MiniKeyboardViewModel(keyboard::KeyboardMonitor& monitor);

    [[nodiscard]] static double fullWidth() { return miniKeyboard::fullWidth(); }

    [[nodiscard]] static double fullHeight() { return miniKeyboard::fullHeight(); }

    /// Rows count from the top.
    Q_INVOKABLE tocca::ui::MiniKeyboardRowViewModel* row(int index) const;

private:
    static constexpr int kRowCount = miniKeyboard::kRowCount;
    static constexpr double kPadding = miniKeyboard::kPadding;
    static constexpr double kRowGap = miniKeyboard::kRowGap;
    static constexpr double kKeyGap = miniKeyboard::kKeyGap;
    static constexpr double kKeyHeight = miniKeyboard::kKeyHeight;

    std::array<MiniKeyboardRowViewModel*, miniKeyboard::kRowCount> rows_{};
    Subscription link_;
};

} // namespace tocca::ui
