#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

struct xcb_connection_t;

namespace tocca::instruments {

/// The settings that a desktop tells its programs through the X server, by XSETTINGS. It comes before the programs that are to follow it.
///
/// Threads: one at a time. Errors: throws `std::runtime_error` without a server.
class DisplaySettings {
public:
    DisplaySettings();
    DisplaySettings(const DisplaySettings&) = delete;
    DisplaySettings& operator=(const DisplaySettings&) = delete;

    /// Changes a setting: "Xft/DPI" in 1024ths of a dot per inch, "Gdk/WindowScalingFactor" …
    void set(const std::string& name, std::int32_t value);

private:
    struct Setting {
        std::int32_t value = 0;
        std::uint32_t serial = 0;
    };

    void publish();

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
    std::uint32_t window_ = 0;
    std::uint32_t serial_ = 0;
    std::map<std::string, Setting> settings_;
};

} // namespace tocca::instruments
