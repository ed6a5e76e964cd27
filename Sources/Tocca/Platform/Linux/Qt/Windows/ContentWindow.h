#pragma once

#include "Platform/Desktop/View.h"

#include <QQuickWindow>

#include <memory>

class QQuickItem;

namespace tocca::platform::linux {

class OwnWindows;

/// A Qt Quick window that is filled by a view.
///
/// Threads: main.
/// Lifetime: ends before `family`.
class ContentWindow : public QQuickWindow {
public:
    /// What kind of window it is to the rest of the program.
    enum class Kind : std::uint8_t {
        ordinary, ///< has the keyboard at times, and is hidden with the program
        popover,  ///< the same, but never brings the program to the front
        overlay,  ///< never has the keyboard, and is not hidden with the program
    };

    ContentWindow(OwnWindows& family, Kind kind);
    ~ContentWindow() override;

    /// Fills the window with `content`, which must be a `QuickView`, from now on.
    void setContent(std::unique_ptr<View> content);

    /// Makes the content if need be, and shows the window.
    virtual void present();

    /// Hides the window with the whole program; true when it is one that comes back with it.
    virtual bool hideWithProgram()
    {
        hide();
        return false;
    }

    [[nodiscard]] Kind kind() const noexcept { return kind_; }

    /// A dialog that belongs to one of the program's windows opens or has been closed.
    virtual void dialogChanged(bool /*isOpen*/) {}

    /// Whether a person drags something over the window.
    [[nodiscard]] bool isDraggedOver() const noexcept { return isDraggedOver_; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// The person, the desktop or the menu wants the window closed.
    virtual void closeRequested() { hide(); }

    /// Handles a key that the content has no use for; false when the window has none either.
    virtual bool handleKey(const QKeyEvent& /*event*/) { return false; }

    /// What was dragged over the window was dropped or taken away again.
    virtual void dragEnded() {}

private:
    void fitContent();

    OwnWindows& family_;
    const Kind kind_;
    std::unique_ptr<View> content_;
    QQuickItem* item_ = nullptr; // below the window's root item
    bool isDraggedOver_ = false;
};

} // namespace tocca::platform::linux
