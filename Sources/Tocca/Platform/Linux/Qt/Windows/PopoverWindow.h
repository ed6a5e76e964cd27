#pragma once

#include "Platform/Linux/Qt/Windows/ContentWindow.h"
#include "Platform/Linux/X11/ButtonWatch.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QRect>
#include <QSocketNotifier>

#include <memory>
#include <optional>
#include <utility>

namespace tocca::platform::linux {

/// What is left of `area` beside a panel that lies along one of its edges.
[[nodiscard]] QRect besidePanel(const QRect& area, const QRect& panel);

/// Where a popover of `size` lies: below or above `anchor`, whichever side has the room, and inside `area`.
[[nodiscard]] QPoint popoverPlace(const QRect& anchor, const QSize& size, const QRect& area);

/// The window of a popover. It goes past the window manager, which would hide it behind other programs or put it elsewhere, so it takes the
/// keyboard itself and gives it back.
///
/// It closes on Escape, when the keyboard goes elsewhere, and when a button that was pressed outside it is released, unless something was
/// dragged to it meanwhile. While a dialog that belongs to it is open it stands aside.
class PopoverWindow final : public ContentWindow {
public:
    explicit PopoverWindow(OwnWindows& family);

    /// How large it is where the screen has the room.
    void setContentSize(const QSize& size) { contentSize_ = size; }

    /// Shows the window at `icon`, else where the pointer is on the desktop's panel, else at the point that the desktop `told`, in pixels,
    /// else in the corner where trays are. A click on the icon closes an open popover first; the same click does not open it again.
    void showAt(const QRect& icon, const std::optional<QPoint>& told);

    /// Closes the window and gives the keyboard back.
    void dismiss();

    /// Whether it is shown, or will be again when the dialog is closed.
    [[nodiscard]] bool isOpen() const { return isVisible() || isAside_; }

private:
    void presentAt(const QRect& anchor);
    void watchButtons();
    void stopWatching();
    void buttonChanged(ButtonWatch::Action action, xcb_window_t over);
    void takeKeyboard();
    void focusMoved();

    /// Closes the window by a click elsewhere, which is remembered.
    void dismissByClick();

    void closeRequested() override { dismiss(); }

    bool hideWithProgram() override
    {
        dismiss();
        return false;
    }

    bool handleKey(const QKeyEvent& event) override;
    void dragEnded() override;
    void dialogChanged(bool isOpen) override;

    OwnWindows& family_;
    QSize contentSize_;
    std::shared_ptr<ButtonWatch> buttons_; // while it is shown
    std::unique_ptr<QSocketNotifier> buttonNotifier_;
    bool isPressedOutside_ = false;
    bool hasHadFocus_ = false;       // since it was shown
    bool isAside_ = false;           // for a dialog
    QElapsedTimer sinceShown_;       // or shown again
    QElapsedTimer sinceClickedAway_; // valid while a click elsewhere is why the window is closed
    QPoint pointerAtClick_;
    std::optional<xcb_window_t> keyboardBefore_; // the window that had the keyboard
};

} // namespace tocca::platform::linux
