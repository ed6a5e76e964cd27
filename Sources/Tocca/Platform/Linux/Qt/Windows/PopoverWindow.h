#pragma once

#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QRect>
#include <QTimer>

#include <optional>

namespace tocca::platform::linux {

/// Where a popover of `size` lies: below or above `anchor`, whichever side has the room, and inside `area`.
[[nodiscard]] QPoint popoverPlace(const QRect& anchor, const QSize& size, const QRect& area);

/// The window of a popover. It closes when it loses the focus, but not while a dialog of it is open or something is dragged to it.
class PopoverWindow final : public ContentWindow {
public:
    explicit PopoverWindow(OwnWindows& family);

    /// Shows the window at `anchor`. A click on the icon closes an open popover by taking its focus away; the same click does not open it
    /// again.
    void showAt(const QRect& anchor);

private:
    void focusMoved();

    /// Closes the window, unless it has the focus again, something is held over it to be dropped, or a dialog is open.
    void closeForFocusLoss();

    void closeRequested() override { hide(); }

    bool handleKey(const QKeyEvent& event) override;
    void dragEnded() override;

    OwnWindows& family_;
    QTimer waitForRelease_;
    bool hasHadFocus_ = false;        // since it was shown
    QElapsedTimer sinceFocusWasLost_; // valid while a lost focus is why the window is closed
    QPoint pointerAtFocusLoss_;
};

} // namespace tocca::platform::linux
