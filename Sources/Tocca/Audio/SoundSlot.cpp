#include "Audio/SoundSlot.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <string>

namespace tocca::audio {

namespace {

constexpr std::array<std::string_view, 3> kExtensions{".mp3", ".wav", ".ogg"};

SoundSlot::Sound soundOf(KeyCategory category) noexcept
{
    switch (category) {
    case KeyCategory::spacebar:
        return SoundSlot::space;
    case KeyCategory::enter:
        return SoundSlot::enter;
    case KeyCategory::backspace:
        return SoundSlot::back;
    case KeyCategory::standard:
    case KeyCategory::modifier:
        break;
    }
    return SoundSlot::standard;
}

} // namespace

std::optional<SoundSlot> SoundSlot::fromFileName(std::string_view fileName)
{
    const bool isAccepted = std::any_of(kExtensions.begin(), kExtensions.end(),
                                        [fileName](auto extension) { return fileName.ends_with(extension); });
    if (!isAccepted) {
        return std::nullopt;
    }
    const std::string name = lowerCased(fileName);
    const auto contains = [&name](std::string_view word) { return name.find(word) != std::string::npos; };
    const auto direction = contains("release") ? KeyStrokeAction::up : KeyStrokeAction::down;
    if (contains("space")) {
        return SoundSlot(direction, space);
    }
    if (contains("enter")) {
        return SoundSlot(direction, enter);
    }
    if (contains("back") || contains("delete")) {
        return SoundSlot(direction, back);
    }
    return SoundSlot(direction, standard);
}

std::array<std::optional<SoundSlot>, 3> SoundSlot::chainFor(KeyCategory category,
                                                            KeyStrokeAction action) noexcept
{
    std::array<std::optional<SoundSlot>, 3> chain{SoundSlot(action, soundOf(category)),
                                                  SoundSlot(action, standard)};
    if (action == KeyStrokeAction::up) {
        chain[2] = SoundSlot(KeyStrokeAction::down, standard);
    }
    return chain;
}

std::string_view SoundSlot::name() const noexcept
{
    constexpr std::array<std::string_view, kCount> kNames{
        "press_standard",   "press_space",   "press_enter",   "press_back",
        "release_standard", "release_space", "release_enter", "release_back"};
    return kNames[index()];
}

} // namespace tocca::audio
