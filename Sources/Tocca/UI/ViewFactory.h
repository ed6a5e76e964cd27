#pragma once

#include "Platform/Desktop/View.h"

#include <functional>
#include <memory>

namespace tocca::ui {

/// Makes the contents of the program's windows, so that the controllers need no Qt. Threads: main.
struct ViewFactory {
    using Make = std::function<std::unique_ptr<platform::View>()>;

    Make menuBar;
    Make mainWindow;
    Make notchHUD;
    Make underglow;
};

/// Names the factory that the `shared` controllers use. Threads: main, once, before any of them is used.
void setDefaultViews(ViewFactory views);

/// The factory given to `setDefaultViews`; one whose functions are empty when there is none. Threads: main.
[[nodiscard]] const ViewFactory& defaultViews();

} // namespace tocca::ui
