#include "Platform/Linux/Qt/Windows/LinuxPopovers.h"

#include "Platform/Linux/Qt/Windows/PopoverWindow.h"
#include "Platform/Linux/Tray/LinuxStatusBar.h"

#include <utility>

namespace tocca::platform::linux {

namespace {

class LinuxPopover final : public Popover {
public:
    explicit LinuxPopover(OwnWindows& family)
        : window_(family)
    {}

    void setContentSize(const Size& size) override
    {
        const QSize pixels = QSizeF(size.width, size.height).toSize();
        window_.setMinimumSize(pixels);
        window_.setMaximumSize(pixels);
        window_.resize(pixels);
    }

    void setBackground(const Colour& background) override
    {
        window_.setColor(QColor(background.red, background.green, background.blue));
    }

    void setContent(std::unique_ptr<View> content) override
    {
        hasContent_ = content != nullptr;
        window_.setContent(std::move(content));
    }

    void show(StatusItem& item) override
    {
        if (hasContent_ && !window_.isVisible()) {
            window_.showAt(static_cast<const LinuxStatusItem&>(item).iconPlace());
        }
    }

    void close() override { window_.hide(); }

    [[nodiscard]] bool isShown() const override { return window_.isVisible(); }

private:
    PopoverWindow window_;
    bool hasContent_ = false;
};

} // namespace

std::unique_ptr<Popover> LinuxPopovers::make()
{
    return std::make_unique<LinuxPopover>(family_);
}

} // namespace tocca::platform::linux
