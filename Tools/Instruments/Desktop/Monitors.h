#pragma once

#include <string>
#include <vector>

namespace tocca::instruments {

/// The monitors of an X server with one virtual output, which a test plugs in and out by `xrandr`.
///
/// Units: pixels. Threads: one at a time. Errors: throws `std::runtime_error` when the server refuses.
class Monitors {
public:
    struct Monitor {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    /// `width` × `height` is what the display has now, and what it is given back in the end: the largest that it can be.
    Monitors(int width, int height);
    Monitors(const Monitors&) = delete;
    Monitors& operator=(const Monitors&) = delete;
    ~Monitors();

    /// Makes the display `width` × `height` with one monitor.
    void useOne(int width, int height);

    /// Divides the display that there is among `monitors`, of which the first is the main one.
    void divide(const std::vector<Monitor>& monitors);

private:
    void removeAll();

    const int width_;
    const int height_;
    std::vector<std::string> names_; // of the parts that there are
    int count_ = 0;                  // of all that ever were: a name stands for one monitor, as plugs do
};

} // namespace tocca::instruments
