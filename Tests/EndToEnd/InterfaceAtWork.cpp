#include "EndToEnd/InterfaceAtWork.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

namespace tocca::endtoend {

using namespace std::chrono_literals;

void InterfaceAtWork::SetUp()
{
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();
    ASSERT_TRUE(becomesTrue([this] { return window("Tocca Studio").has_value(); })) << program.output();
}

void InterfaceAtWork::click(const std::string& name, const std::string& role)
{
    const auto control = reader.find(name, role);
    ASSERT_TRUE(control) << "\"" << name << "\" is nowhere to be seen";
    clickAt(control->midX(), control->midY());
}

void InterfaceAtWork::clickAt(int x, int y, std::uint8_t button)
{
    hands.movePointer(x, y);
    hands.pressButton(button);
    hands.releaseButton(button);
}

void InterfaceAtWork::chord(const std::vector<std::uint16_t>& keys)
{
    std::for_each(keys.begin(), keys.end(), [this](auto key) { hands.press(key); });
    std::for_each(keys.rbegin(), keys.rend(), [this](auto key) { hands.release(key); });
}

void InterfaceAtWork::listen()
{
    recorder = std::make_unique<instruments::MonitorRecorder>(300s, kPatience);
    ASSERT_TRUE(instruments::becomesAudible(hands, *recorder, kPatience)) << program.output();
}

instruments::Hearing InterfaceAtWork::typeAndHear(std::span<const std::uint16_t> keys)
{
    return instruments::typeAndHear(hands, *recorder, keys, {}, random, kPatience);
}

std::optional<instruments::VisibleWindow> InterfaceAtWork::window(const std::string& title)
{
    const auto windows = screen.windowsOf(program.id());
    const auto match = std::find_if(windows.begin(), windows.end(),
                                    [&](const auto& candidate) { return candidate.name == title; });
    return match != windows.end() ? std::optional(*match) : std::nullopt;
}

void InterfaceAtWork::keepPicture(const std::string& name) const
{
    const std::filesystem::path folder = SCREENS_DIRECTORY;
    std::filesystem::create_directories(folder);
    const instruments::XScreen now; // which may have another size by now
    const auto picture = now.picture(0, 0, now.width(), now.height());
    const auto raw = folder / (name + ".ppm");
    {
        std::ofstream file(raw, std::ios::binary);
        file << "P6\n" << picture.width << ' ' << picture.height << "\n255\n";
        for (const auto& pixel : picture.pixels) {
            for (const int component : {pixel.red, pixel.green, pixel.blue}) {
                file.put(static_cast<char>(component));
            }
        }
    }
    instruments::Process convert({"convert", raw.string(), (folder / (name + ".png")).string()});
    EXPECT_EQ(convert.waitForExit(kPatience), 0) << convert.output();
    std::filesystem::remove(raw);
}

} // namespace tocca::endtoend
