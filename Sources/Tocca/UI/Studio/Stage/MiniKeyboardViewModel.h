#pragma once

#include "Support/Subscription.h"
#include "UI/Quick/RowsModel.h"
#include "UI/Studio/Stage/VisualKey.h"

#include <QObject>
#include <QQmlEngine>

#include <cstdint>
#include <vector>

namespace tocca::keyboard {
class KeyboardMonitor;
}

namespace tocca::ui {

/// A cap as it is drawn.
struct KeyCap {
    QString label;
    double labelSize = 0;
    double widthRatio = 1;
    std::uint16_t code = 0;
    bool isActive = false;

    bool operator==(const KeyCap&) const = default;
};

/// The model of the drawn keyboard, lit by the keys that are pressed anywhere. Units: points, given enough room. Threads: main.
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

    /// The caps of a row; rows count from the top.
    Q_INVOKABLE QAbstractItemModel* row(int index) const;

    /// The width of a standard key in a row that has `available` points.
    Q_INVOKABLE static double unitWidth(int row, double available);

private:
    static constexpr int kRowCount = miniKeyboard::kRowCount;
    static constexpr double kPadding = miniKeyboard::kPadding;
    static constexpr double kRowGap = miniKeyboard::kRowGap;
    static constexpr double kKeyGap = miniKeyboard::kKeyGap;
    static constexpr double kKeyHeight = miniKeyboard::kKeyHeight;

    std::vector<RowsModel<KeyCap>*> rows_;
    Subscription link_;
};

} // namespace tocca::ui
