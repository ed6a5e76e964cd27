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
class LinuxWindow final : public Window, public ContentWindow {
public:
    LinuxWindow(OwnWindows& family, const WindowOptions& options, std::unique_ptr<View> content)
        : ContentWindow(family, Kind::ordinary)
    {
        const auto pixels = [](const Size& size) { return QSizeF(size.width, size.height).toSize(); };
        setTitle(QString::fromStdString(options.title));
        setColor(QColor(options.background.red, options.background.green, options.background.blue));
        setMinimumSize(pixels(options.minimumSize));
        QSize initial = pixels(options.contentSize);
        if (screen() != nullptr) {
            initial = initial.boundedTo(screen()->availableSize());
        }
        resize(initial.expandedTo(minimumSize()));
        setContent(std::move(content));
    }

    void setShouldClose(ShouldClose handler) override { shouldClose_ = std::move(handler); }

    void center() override
    {
        if (screen() != nullptr) {
            QRect frame({}, size().grownBy(frameMargins()));
            frame.moveCenter(screen()->availableGeometry().center());
            setFramePosition(frame.topLeft());
        }
    }

    void makeKeyAndOrderFront() override
    {
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
        present();
        bringToFront(*this);
    }

    void present() override
    {
        if (!isVisible()) {
            XDesktop::adopt(*this);
            if (place_) {
                setFramePosition(*place_);
            }
        }
        ContentWindow::present();
    }

    void orderOut() override
    {
        if (isVisible()) {
            place_ = framePosition();
            hide();
        }
    }

    bool hideWithProgram() override
    {
        orderOut();
        return true;
    }

    [[nodiscard]] bool isVisible() const override { return ContentWindow::isVisible(); }

private:
    void closeRequested() override
    {
        if (!shouldClose_ || shouldClose_()) {
            orderOut();
        }
    }

    ShouldClose shouldClose_;
    std::optional<QPoint> place_; // where it was hidden
};

} // namespace

std::unique_ptr<Window> LinuxWindows::make(const WindowOptions& options, std::unique_ptr<View> content)
{
    return std::make_unique<LinuxWindow>(family_, options, std::move(content));
}

} // namespace tocca::platform::linux
