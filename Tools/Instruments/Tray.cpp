#include "Instruments/Tray.h"

#include "Instruments/Waiting.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace tocca::instruments {
namespace {

constexpr int kPanelHeight = 30;
constexpr int kBright = 200; // an icon's strokes on the black panel

std::string configuration()
{
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
    const auto file = std::filesystem::path(runtime) / "tray.conf";
    std::ofstream(file)
        << "panel_items = S\npanel_position = bottom right horizontal\npanel_size = 200 " << kPanelHeight
        << "\npanel_background_id = 1\nsystray_icon_size = 22\nrounded = 0\nbackground_color = #000000 100\n"
           "panel_background_id = 1\n";
    return file.string();
}

} // namespace

Tray::Tray()
    : panel_({"tint2", "-c", configuration()})
{}

std::optional<std::pair<int, int>> Tray::icon()
{
    std::optional<std::pair<int, int>> middle;
    (void)becomesTrue([&] {
        for (const auto& window : screen_.windowsOf(panel_.id())) {
            const auto picture = screen_.picture(window.x, window.y, window.width, window.height);
            int left = picture.width;
            int right = -1;
            for (int y = 0; y < picture.height; ++y) {
                for (int x = 0; x < picture.width; ++x) {
                    if (picture.at(x, y).red > kBright) {
                        left = std::min(left, x);
                        right = std::max(right, x);
                    }
                }
            }
            if (right >= left) {
                middle = {window.x + (left + right) / 2, window.y + window.height / 2};
            }
        }
        return middle.has_value();
    });
    return middle;
}

} // namespace tocca::instruments
