#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace tocca::instruments {

/// A colour. Units: 0…255.
struct Pixel {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const Pixel&) const = default;
};

/// A copy of a part of the screen.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels; ///< row by row

    [[nodiscard]] const Pixel& at(int x, int y) const
    {
        return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                         static_cast<std::size_t>(x));
    }
};

/// A window that is to be seen. Units: pixels of the screen.
struct VisibleWindow {
    std::uint32_t id = 0;
    std::string name;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// The screen as the X server has it: pixels and windows. Threads: one at a time. Errors: throws `std::runtime_error` without a server.
class XScreen {
public:
    XScreen();

    /// The size that the screen had when this object was made.
    [[nodiscard]] int width() const noexcept { return width_; }

    [[nodiscard]] int height() const noexcept { return height_; }

    /// Where the main monitor is now; the first one where none is the main one.
    [[nodiscard]] VisibleWindow mainMonitor() const;

    [[nodiscard]] Picture picture(int x, int y, int width, int height) const;

    /// The windows of the program with process `id`, lowest first, wherever a window manager has put them.
    [[nodiscard]] std::vector<VisibleWindow> windowsOf(int process) const;

    /// Whether task bars, pagers and switchers can know of the window, because the window manager lists it.
    [[nodiscard]] bool isListed(std::uint32_t window) const;

    /// The window that has the keyboard.
    [[nodiscard]] std::uint32_t focus() const;

    /// The name of the window that the window manager calls active; empty when there is none.
    [[nodiscard]] std::string activeWindow() const;

private:
    [[nodiscard]] std::uint32_t atom(const char* name) const;
    [[nodiscard]] std::vector<std::uint32_t> words(std::uint32_t window, const char* property) const;
    [[nodiscard]] std::string nameOf(std::uint32_t window) const;
    void collect(std::uint32_t window, std::uint32_t process, std::vector<VisibleWindow>& into) const;

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
    std::uint32_t root_ = 0;
    int width_ = 0;
    int height_ = 0;
};

} // namespace tocca::instruments
