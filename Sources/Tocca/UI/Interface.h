#pragma once

#include "UI/Popover/MenuBarViewModel.h"
#include "UI/Studio/MainWindowViewModel.h"

#include <QQmlEngine>

#include <functional>
#include <optional>

class QQuickItem;

namespace tocca::ui {

/// The contents of the program's windows: one engine for all of them, and the models of the two that people work in.
///
/// Threads: main.
/// Lifetime: outlives the items it makes.
class Interface {
public:
    /// What the popover asks of the program.
    struct Commands {
        std::function<void()> showMainWindow;
        std::function<void()> terminate;
    };

    explicit Interface(Commands commands);

    /// Makes the popover's model, and with it the `shared` controllers, in their order.
    void prepareMenuBar();

    /// Makes every change of what is shown immediate, or gradual as it is at the start.
    void setReducesMotion(bool reducesMotion);

    /// Each makes the content of a window below `parent`. The popover's model must have been prepared.
    [[nodiscard]] QQuickItem* makeMenuBarView(QQuickItem& parent);
    [[nodiscard]] QQuickItem* makeMainWindowView(QQuickItem& parent);
    [[nodiscard]] QQuickItem* makeNotchHUDView(QQuickItem& parent);
    [[nodiscard]] QQuickItem* makeUnderglowView(QQuickItem& parent);

private:
    const Commands commands_;
    QQmlEngine engine_;
    bool reducesMotion_ = false;
    std::optional<MenuBarViewModel> menuBar_;
    std::optional<MainWindowViewModel> mainWindow_;
};

} // namespace tocca::ui
