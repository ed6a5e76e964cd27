#include "App/MainMenuTable.h"

#include <string>

namespace tocca::app {
namespace {

using platform::KeyEquivalent;
using platform::Menu;
using platform::MenuItem;

MenuItem item(std::string title, std::string action, KeyEquivalent key = {})
{
    return {.title = std::move(title), .action = std::move(action), .keyEquivalent = std::move(key)};
}

KeyEquivalent command(std::string key)
{
    return {.key = std::move(key)};
}

const MenuItem& separator()
{
    static const MenuItem line;
    return line;
}

} // namespace

std::vector<Menu> mainMenuTable()
{
    return {
        Menu{"",
             {item("About Tocca", "orderFrontStandardAboutPanel:"), separator(),
              item("Hide Tocca", "hide:", command("h")),
              item("Hide Others", "hideOtherApplications:", {.key = "h", .option = true}),
              item("Show All", "unhideAllApplications:"), separator(),
              item("Quit Tocca", "terminate:", command("q"))}},
        Menu{"File", {item("Close Window", "performClose:", command("w"))}},
        Menu{"Edit",
             {item("Undo", "undo:", command("z")), item("Redo", "redo:", command("Z")), separator(),
              item("Cut", "cut:", command("x")), item("Copy", "copy:", command("c")),
              item("Paste", "paste:", command("v")), item("Select All", "selectAll:", command("a"))}},
        Menu{"View",
             {{.title = "Show Notch Dynamic Island HUD",
               .action = std::string(kToggleNotchHUD),
               .keyEquivalent = {.key = "n", .control = true},
               .isCheckable = true}}},
        Menu{"Window", {item("Minimize", "performMiniaturize:", command("m")), item("Zoom", "performZoom:")}},
    };
}

} // namespace tocca::app
