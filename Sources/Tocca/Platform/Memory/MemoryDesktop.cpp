#include "Platform/Memory/MemoryDesktop.h"

namespace tocca::platform::memory {
namespace {

class MemoryPanel : public Panel {
public:
    MemoryPanel(std::shared_ptr<PanelRecord> record, std::unique_ptr<View> content, Journal& journal)
        : record_(std::move(record))
        , content_(std::move(content))
        , journal_(journal)
    {}

    ~MemoryPanel() override { record_->exists = record_->isVisible = false; }

    void setFrame(const Rect& frame) override { record_->frame = frame; }

    void orderFront() override
    {
        record_->isVisible = true;
        journal_.emplace_back("panel ordered front");
    }

    void orderOut() override
    {
        record_->isVisible = false;
        journal_.emplace_back("panel ordered out");
    }

    [[nodiscard]] bool isVisible() const override { return record_->isVisible; }

private:
    std::shared_ptr<PanelRecord> record_;
    std::unique_ptr<View> content_;
    Journal& journal_;
};

class MemoryWindow : public Window {
public:
    MemoryWindow(std::shared_ptr<WindowRecord> record, std::unique_ptr<View> content, Journal& journal)
        : record_(std::move(record))
        , content_(std::move(content))
        , journal_(journal)
    {}

    void setShouldClose(ShouldClose handler) override { record_->shouldClose = std::move(handler); }

    void center() override { record_->isCentered = true; }

    void makeKeyAndOrderFront() override
    {
        record_->isVisible = true;
        ++record_->timesMadeKey;
        journal_.emplace_back("window ordered front");
    }

    void orderOut() override
    {
        record_->isVisible = false;
        journal_.emplace_back("window ordered out");
    }

    [[nodiscard]] bool isVisible() const override { return record_->isVisible; }

private:
    std::shared_ptr<WindowRecord> record_;
    std::unique_ptr<View> content_;
    Journal& journal_;
};

class MemoryStatusItem : public StatusItem {
public:
    explicit MemoryStatusItem(MemoryStatusBar& bar)
        : bar_(bar)
    {}

    [[nodiscard]] bool hasButton() const override { return bar_.hasButtons; }

    void setIcon(const TemplateIcon& icon) override { bar_.icon = icon; }

    void setAction(std::function<void()> action) override { bar_.action = std::move(action); }

private:
    MemoryStatusBar& bar_;
};

class MemoryPopover : public Popover {
public:
    MemoryPopover(MemoryPopovers& popovers, Journal& journal)
        : popovers_(popovers)
        , journal_(journal)
    {}

    void setContentSize(const Size& size) override { popovers_.contentSize = size; }

    void setBackground(const Colour& background) override { popovers_.background = background; }

    void setContent(std::unique_ptr<View> content) override
    {
        content_ = std::move(content);
        popovers_.hasContent = content_ != nullptr;
    }

    void show(StatusItem& /*item*/) override
    {
        popovers_.isShown = true;
        journal_.emplace_back("popover shown");
    }

    void close() override
    {
        popovers_.isShown = false;
        journal_.emplace_back("popover closed");
    }

    [[nodiscard]] bool isShown() const override { return popovers_.isShown; }

private:
    MemoryPopovers& popovers_;
    std::unique_ptr<View> content_;
    Journal& journal_;
};

} // namespace

void MemoryScreens::change(std::optional<Screen> main)
{
    main_ = main;
    listeners_.call();
}

std::unique_ptr<Panel> MemoryPanels::make(const Rect& frame, WindowLevel level, std::unique_ptr<View> content)
{
    journal_.emplace_back("panel made");
    made.push_back(std::make_shared<PanelRecord>(PanelRecord{.frame = frame, .level = level}));
    return std::make_unique<MemoryPanel>(made.back(), std::move(content), journal_);
}

void WindowRecord::clickClose()
{
    if (!shouldClose || shouldClose()) {
        isVisible = false;
    }
}

std::unique_ptr<Window> MemoryWindows::make(const WindowOptions& options, std::unique_ptr<View> content)
{
    journal_.emplace_back("window made");
    made.push_back(std::make_shared<WindowRecord>(WindowRecord{.options = options}));
    return std::make_unique<MemoryWindow>(made.back(), std::move(content), journal_);
}

std::unique_ptr<StatusItem> MemoryStatusBar::makeStatusItem()
{
    journal_.emplace_back("status item made");
    return std::make_unique<MemoryStatusItem>(*this);
}

void MemoryStatusBar::click() const
{
    if (action) {
        action();
    }
}

std::unique_ptr<Popover> MemoryPopovers::make()
{
    journal_.emplace_back("popover made");
    return std::make_unique<MemoryPopover>(*this, journal_);
}

void MemoryMainMenu::install(std::vector<Menu> menus, MenuTarget& target)
{
    menus_ = std::move(menus);
    target_ = &target;
    journal_.emplace_back("menu installed");
}

MenuItemState MemoryMainMenu::validate(const MenuItem& item) const
{
    return target_ != nullptr ? target_->validateMenuItem(item) : MenuItemState{};
}

bool MemoryMainMenu::perform(const MenuItem& item)
{
    if (!validate(item).isEnabled) {
        return false;
    }
    if (target_ == nullptr || !target_->performMenuAction(item.action)) {
        standardActions.push_back(item.action);
    }
    return true;
}

void MemoryMainMenu::showByDesktop(bool shown)
{
    isShownByDesktop_ = shown;
    listeners_.call();
}

void MemoryOpenPanels::chooseDirectory(const std::string& prompt, Completion completion)
{
    prompts.push_back(prompt);
    if (!pending_) {
        pending_ = std::move(completion);
    }
}

void MemoryOpenPanels::answer(const std::optional<std::filesystem::path>& directory)
{
    if (const auto completion = std::exchange(pending_, nullptr)) {
        completion(directory);
    }
}

int MemoryApplication::run(ApplicationDelegate& delegate)
{
    delegate.applicationDidFinishLaunching();
    return 0;
}

void MemoryApplication::setActivationPolicy(ActivationPolicy policy)
{
    activationPolicy = policy;
    journal_.emplace_back(policy == ActivationPolicy::regular ? "policy regular" : "policy accessory");
}

} // namespace tocca::platform::memory
