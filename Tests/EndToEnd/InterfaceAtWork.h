#pragma once

#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/ScreenReader.h"
#include "Instruments/XScreen.h"

#include <optional>
#include <string>

namespace tocca::endtoend {

/// The program with its windows, read by a screen reader and worked with a pointer.
class InterfaceAtWork : public testing::Test {
protected:
    /// Waits until the program listens and the Studio window is to be seen.
    void SetUp() override;

    /// Clicks into the middle of the control of that name, once it is to be seen.
    void click(const std::string& name, const std::string& role = {});
    void clickAt(int x, int y, std::uint8_t button = 1);

    /// Presses the keys together and releases them in the opposite order.
    void chord(const std::vector<std::uint16_t>& keys);

    /// Starts to record what the sink plays.
    void listen();

    /// What is heard of `keys`, typed one after the other.
    [[nodiscard]] instruments::Hearing typeAndHear(std::span<const std::uint16_t> keys);

    /// The program's window of that title, if it is to be seen.
    [[nodiscard]] std::optional<instruments::VisibleWindow> window(const std::string& title);

    /// Keeps a picture of the screen among those that people look at.
    void keepPicture(const std::string& name) const;

    instruments::ScreenReader reader;
    instruments::Process program{startProgram({{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}})};
    instruments::XScreen screen;
    instruments::XTestKeyboard hands;
    std::unique_ptr<instruments::MonitorRecorder> recorder;
    std::mt19937 random{20}; // NOLINT(cert-msc51-cpp): the same typing each time
};

} // namespace tocca::endtoend
