#pragma once

#include "Platform/Desktop/Application.h"
#include "Platform/Desktop/MainMenu.h"
#include "Platform/Desktop/OpenPanels.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Desktop/Popovers.h"
#include "Platform/Desktop/Screens.h"
#include "Platform/Desktop/StatusBar.h"
#include "Platform/Desktop/Windows.h"
#include "Platform/UserDefaults.h"
#include "Support/Listeners.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::memory {

/// What happened on the desktop, in order: "window ordered front", "policy regular".
using Journal = std::vector<std::string>;

/// Displays that a test connects and takes away.
class MemoryScreens : public Screens {
public:
    [[nodiscard]] std::optional<Screen> main() const override { return main_; }

    [[nodiscard]] Subscription onChange(std::function<void()> handler) override
    {
        return listeners_.add(std::move(handler));
    }

    void change(std::optional<Screen> main);

private:
    std::optional<Screen> main_{Screen{{0, 0, 1920, 1080}, 0}};
    Listeners<> listeners_;
};

/// What a test sees of a panel, also after the panel is gone.
struct PanelRecord {
    Rect frame;
    WindowLevel level{};
    bool isVisible = false;
    bool exists = true;
};

/// Overlays that a test looks at.
class MemoryPanels : public Panels {
public:
    explicit MemoryPanels(Journal& journal)
        : journal_(journal)
    {}

    [[nodiscard]] std::unique_ptr<Panel> make(const Rect& frame, WindowLevel level,
                                              std::unique_ptr<View> content) override;

    std::vector<std::shared_ptr<PanelRecord>> made; ///< every panel ever made, in order

private:
    Journal& journal_;
};

/// What a test sees and does to a window.
struct WindowRecord {
    WindowOptions options;
    bool isVisible = false;
    bool isCentered = false;
    int timesMadeKey = 0;
    Window::ShouldClose shouldClose{};

    /// The person clicks on the close button.
    void clickClose();
};

/// Windows that a test looks at and closes.
class MemoryWindows : public Windows {
public:
    explicit MemoryWindows(Journal& journal)
        : journal_(journal)
    {}

    [[nodiscard]] std::unique_ptr<Window> make(const WindowOptions& options,
                                               std::unique_ptr<View> content) override;

    std::vector<std::shared_ptr<WindowRecord>> made;

private:
    Journal& journal_;
};

/// A tray whose icon a test clicks.
class MemoryStatusBar : public StatusBar {
public:
    explicit MemoryStatusBar(Journal& journal)
        : journal_(journal)
    {}

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;

    /// The person clicks on the icon.
    void click() const;

    bool hasButtons = true;
    TemplateIcon icon;
    std::function<void()> action;

private:
    Journal& journal_;
};

/// Popovers that a test looks at; all share one record.
class MemoryPopovers : public Popovers {
public:
    explicit MemoryPopovers(Journal& journal)
        : journal_(journal)
    {}

    [[nodiscard]] std::unique_ptr<Popover> make() override;

    Size contentSize;
    Colour background;
    bool hasContent = false;
    bool isShown = false; ///< a test closes a popover from outside by clearing it

private:
    Journal& journal_;
};

/// A main menu whose items a test chooses.
class MemoryMainMenu : public MainMenu {
public:
    explicit MemoryMainMenu(Journal& journal)
        : journal_(journal)
    {}

    void install(std::vector<Menu> menus, MenuTarget& target) override;

    [[nodiscard]] const std::vector<Menu>& menus() const override { return menus_; }

    [[nodiscard]] bool isShownByDesktop() const override { return isShownByDesktop_; }

    [[nodiscard]] Subscription onDesktopChange(std::function<void()> handler) override
    {
        return listeners_.add(std::move(handler));
    }

    [[nodiscard]] MenuItemState validate(const MenuItem& item) const override;

    /// Hands `item` to the target; what that has no answer to is kept in `standardActions`.
    bool perform(const MenuItem& item) override;

    void showByDesktop(bool shown);

    std::vector<std::string> standardActions;

private:
    Journal& journal_;
    std::vector<Menu> menus_;
    MenuTarget* target_ = nullptr;
    bool isShownByDesktop_ = false;
    Listeners<> listeners_;
};

/// A dialog that a test answers.
class MemoryOpenPanels : public OpenPanels {
public:
    void chooseDirectory(const std::string& prompt, Completion completion) override;

    /// The person chooses `directory`, or cancels.
    void answer(const std::optional<std::filesystem::path>& directory);

    std::vector<std::string> prompts; ///< of every request

private:
    Completion pending_;
};

/// Values that a test looks at.
class MemoryUserDefaults : public UserDefaults {
public:
    void setBool(std::string_view key, bool value) override
    {
        values.insert_or_assign(std::string(key), value);
        ++writeCount;
    }

    std::map<std::string, bool> values;
    int writeCount = 0;
};

/// A program that a test launches, reopens and watches.
class MemoryApplication : public Application {
public:
    explicit MemoryApplication(Journal& journal)
        : journal_(journal)
    {}

    /// Launches and returns at once; time is the host's.
    int run(ApplicationDelegate& delegate) override;
    void setActivationPolicy(ActivationPolicy policy) override;

    void activate() override { journal_.emplace_back("activated"); }

    void terminate() override
    {
        isTerminated = true;
        journal_.emplace_back("terminated");
    }

    std::optional<ActivationPolicy> activationPolicy; ///< none until the first was set
    bool isTerminated = false;

private:
    Journal& journal_;
};

} // namespace tocca::platform::memory
