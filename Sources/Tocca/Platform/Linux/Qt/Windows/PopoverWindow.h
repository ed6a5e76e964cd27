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

/// The window of a popover: it goes away with the focus, unless the person is on the way back to it.
class PopoverWindow final : public ContentWindow {
public:
    explicit PopoverWindow(OwnWindows& family);

    /// Shows the window at `anchor`. A click on what opened it takes the focus away first: the same click does not open it again.
    void showAt(const QRect& anchor);

private:
    void focusMoved();

    /// Closes the window, unless the person has it again or has brought something that is about to be dropped on it.
    void closeForFocusLoss();

    void closeRequested() override { hide(); }

    bool handleKey(const QKeyEvent& event) override;
    void dragEnded() override;

    OwnWindows& family_;
    QTimer waitForRelease_;
    bool hasHadFocus_ = false;        // since it was shown
    QElapsedTimer sinceFocusWasLost_; // invalid unless that closed it
    QPoint pointerAtFocusLoss_;
};

} // namespace tocca::platform::linux
