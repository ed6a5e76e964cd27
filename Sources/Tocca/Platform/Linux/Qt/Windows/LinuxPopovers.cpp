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
        window_.setContentSize(QSizeF(size.width, size.height).toSize());
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
        if (hasContent_ && !window_.isOpen()) {
            const auto& icon = static_cast<const LinuxStatusItem&>(item);
            window_.showAt(icon.iconPlace(), icon.activationPlace());
        }
    }

    void close() override { window_.dismiss(); }

    [[nodiscard]] bool isShown() const override { return window_.isOpen(); }

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
