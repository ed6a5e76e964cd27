#pragma once

#include "Instruments/Process.h"
#include "Instruments/Waiting.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tocca::instruments {

/// A control as assistive programs see it. Units: pixels of the screen.
struct Control {
    std::string name;
    std::string role;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool isShowing = false;
    bool isChecked = false;
    bool isFocused = false;
    bool isEnabled = false;
    bool isFocusable = false;

    [[nodiscard]] int midX() const noexcept { return x + width / 2; }

    [[nodiscard]] int midY() const noexcept { return y + height / 2; }
};

/// Reads the session's windows as a screen reader does, which tells where each control is and whether blind people find it.
///
/// Makes the session's accessibility bus, so it comes before the program that is to be read.
/// Threads: main, with a `QCoreApplication`. Errors: throws `std::runtime_error` without that bus.
class ScreenReader {
public:
    /// Whether the session says from the start that a screen reader is on, or not until `switchOn`.
    enum class Start : std::uint8_t { on, off };

    explicit ScreenReader(Start start = Start::on);
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    /// Says on the session bus that a screen reader is on from now on.
    void switchOn();

    /// Everything that the programs of the session show now.
    [[nodiscard]] std::vector<Control> controls() const;

    /// What has the keyboard's focus now, if anything says so; the innermost of several.
    [[nodiscard]] std::optional<Control> focused() const;

    /// Waits until a control of that name is to be seen; none when there is none by the deadline. `role` may be empty.
    [[nodiscard]] std::optional<Control> find(const std::string& name, const std::string& role = {},
                                              std::chrono::milliseconds deadline = kPatience) const;

private:
    class Bus;

    instruments::Process launcher_;
    std::unique_ptr<Bus> bus_;
};

} // namespace tocca::instruments
