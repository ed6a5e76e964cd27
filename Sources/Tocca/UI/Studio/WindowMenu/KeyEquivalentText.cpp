#include "UI/Studio/WindowMenu/KeyEquivalentText.h"

#include "UI/Studio/Showroom/TextFolding.h"

#include <algorithm>

namespace tocca::ui {

std::string keyEquivalentText(const platform::KeyEquivalent& equivalent)
{
    if (equivalent.key.empty()) {
        return {};
    }
    std::string key = equivalent.key;
    const bool isCapital = foldedCase(key) != key;
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
