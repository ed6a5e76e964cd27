#include "Platform/Linux/X11/DesktopScale.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::linux {
namespace {

std::string number(std::uint32_t value, std::size_t size, bool isBig)
{
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> 8U * (isBig ? size - 1 - i : i) & 0xFFU);
    }
    return bytes;
}

std::string padded(std::string text)
{
    text.resize((text.size() + 3) / 4 * 4);
    return text;
}

/// Settings as a desktop keeps them: a text and a colour before the numbers.
std::string settings(const std::vector<std::pair<std::string, std::uint32_t>>& integers, bool isBig = false)
{
    const auto entry = [isBig](char type, const std::string& name) {
        return std::string{type, '\0'} + number(static_cast<std::uint32_t>(name.size()), 2, isBig) +
               padded(name) + number(7, 4, isBig);
    };
    std::string bytes = std::string{isBig ? '\1' : '\0', '\0', '\0', '\0'} + number(3, 4, isBig) +
                        number(static_cast<std::uint32_t>(integers.size()) + 2, 4, isBig) +
                        entry(1, "Net/ThemeName") + number(7, 4, isBig) + padded("Adwaita") +
                        entry(2, "Net/Colour") + std::string(8, '\1');
    for (const auto& [name, value] : integers) {
        bytes += entry(0, name) + number(value, 4, isBig);
    }
    return bytes;
}

TEST(DesktopScale, IsWhatIsNotInTheResolutionOfTextAlready)
{
    constexpr const char* kScale = "Gdk/WindowScalingFactor";
    constexpr const char* kDpi = "Xft/DPI";
    constexpr std::uint32_t kUsual = 96 * 1024;
    EXPECT_EQ(scaleIn(settings({{kDpi, kUsual}, {kScale, 2}})), 2) << "as XFCE does";
    EXPECT_EQ(scaleIn(settings({{kDpi, kUsual}, {kScale, 2}}, true)), 2);
    EXPECT_EQ(scaleIn(settings({{kScale, 2}, {kDpi, 2 * kUsual}})), 1) << "as GNOME does";
    EXPECT_EQ(scaleIn(settings({{kDpi, kUsual * 5 / 4}})), 1);
    EXPECT_EQ(scaleIn(settings({{kScale, 1}})), 1);
    EXPECT_EQ(scaleIn(settings({{kScale, 4'000'000'000U}})), 4);

    const std::string whole = settings({{kScale, 2}});
    for (std::size_t size = 0; size < whole.size() - 4; ++size) {
        EXPECT_EQ(scaleIn(whole.substr(0, size)), 1) << size;
    }
}

} // namespace
} // namespace tocca::platform::linux
