#pragma once

#include "Platform/Desktop/View.h"

#include <QQuickWindow>

#include <memory>

class QQuickItem;

namespace tocca::platform::linux {

class OwnWindows;

/// A window of the toolkit that is filled by a view.
///
/// Threads: main.
/// Lifetime: ends before `family`.
class ContentWindow : public QQuickWindow {
public:
    /// What kind of window it is to the rest of the program.
    enum class Kind : std::uint8_t {
        ordinary, ///< has the keyboard at times, and is hidden with the program
        overlay,  ///< takes part in nothing
    };

    ContentWindow(OwnWindows& family, Kind kind);
    ~ContentWindow() override;

    /// Shows `content` from now on; it must be a `QuickView`.
    void setContent(std::unique_ptr<View> content);

    /// Shows the window, with its content made by now.
    void present();

    /// Whether a person drags something over the window.
    [[nodiscard]] bool isDraggedOver() const noexcept { return isDraggedOver_; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// The person, the desktop or the menu wants the window closed.
    virtual void closeRequested() { hide(); }

    /// A key that the content has no use for; true when the window has.
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
