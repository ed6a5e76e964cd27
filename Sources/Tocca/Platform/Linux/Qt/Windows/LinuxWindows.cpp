#include "Platform/Linux/Qt/Windows/LinuxWindows.h"

#include "Platform/Linux/Qt/Windows/ContentWindow.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QScreen>

#include <optional>
#include <utility>

namespace tocca::platform::linux {

namespace {

/// A window that comes back at the place where it was hidden.
class TitledWindow final : public ContentWindow {
public:
    explicit TitledWindow(OwnWindows& family)
        : ContentWindow(family, Kind::ordinary)
    {}

    Window::ShouldClose shouldClose;

    void showInFront()
    {
        if (!isVisible()) {
            XDesktop::adopt(*this);
            if (place_) {
                setFramePosition(*place_);
            }
        }
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
        present();
        bringToFront(*this);
    }

    void hideInPlace()
    {
        if (isVisible()) {
            place_ = framePosition();
            hide();
        }
    }

private:
    void closeRequested() override
    {
        if (!shouldClose || shouldClose()) {
            hideInPlace();
        }
    }

    std::optional<QPoint> place_;
};

class LinuxWindow final : public Window {
public:
    LinuxWindow(OwnWindows& family, const WindowOptions& options, std::unique_ptr<View> content)
        : window_(family)
    {
        const auto pixels = [](const Size& size) { return QSizeF(size.width, size.height).toSize(); };
        window_.setTitle(QString::fromStdString(options.title));
        window_.setColor(QColor(options.background.red, options.background.green, options.background.blue));
        window_.setMinimumSize(pixels(options.minimumSize));
        QSize size = pixels(options.contentSize);
        if (const QScreen* const screen = window_.screen()) {
            size = size.boundedTo(screen->availableSize());
        }
        window_.resize(size.expandedTo(window_.minimumSize()));
        window_.setContent(std::move(content));
    }

    void setShouldClose(ShouldClose handler) override { window_.shouldClose = std::move(handler); }

    void center() override
    {
        const QScreen* const screen = window_.screen();
        if (screen == nullptr) {
            return;
        }
        QRect frame({}, window_.size().grownBy(window_.frameMargins()));
        frame.moveCenter(screen->availableGeometry().center());
        window_.setFramePosition(frame.topLeft());
    }

    void makeKeyAndOrderFront() override { window_.showInFront(); }

    void orderOut() override { window_.hideInPlace(); }

    [[nodiscard]] bool isVisible() const override { return window_.isVisible(); }

private:
    TitledWindow window_;
};

} // namespace

std::unique_ptr<Window> LinuxWindows::make(const WindowOptions& options, std::unique_ptr<View> content)
{
    return std::make_unique<LinuxWindow>(family_, options, std::move(content));
}

} // namespace tocca::platform::linux
