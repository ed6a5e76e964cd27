#include "UI/Studio/WindowMenu/KeyEquivalentText.h"

#include <algorithm>

namespace tocca::ui {

std::string keyEquivalentText(const platform::KeyEquivalent& equivalent)
{
    std::string key = equivalent.key;
    if (key.empty()) {
        return {};
    }
    const bool isCapital = key.front() >= 'A' && key.front() <= 'Z';
    std::transform(key.begin(), key.end(), key.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - ('a' - 'A')) : letter;
    });
    std::string text;
    text += equivalent.command ? "Ctrl+" : "";
    text += equivalent.option ? "Alt+" : "";
    text += equivalent.control ? "Super+" : "";
    text += isCapital ? "Shift+" : "";
    return text + key;
}

} // namespace tocca::ui
