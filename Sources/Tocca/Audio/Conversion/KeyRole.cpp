#include "Audio/Conversion/KeyRole.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string>
#include <vector>

namespace tocca::audio {

namespace {

struct CodeRange {
    std::uint32_t first;
    std::uint32_t last;
};

// The rows of digits and letters with what is between them and Enter, and the key beside the left Shift.
constexpr std::array kTypingCodes{CodeRange{2, 13},  CodeRange{16, 27}, CodeRange{30, 41},
                                  CodeRange{43, 43}, CodeRange{44, 53}, CodeRange{86, 86}};

constexpr std::uint32_t kBackspaceCode = 14;
constexpr std::uint32_t kEnterCode = 28;
constexpr std::uint32_t kSpaceCode = 57;

/// What both kinds of code have in common.
KeyRole roleOfPlainCode(std::uint32_t code) noexcept
{
    switch (code) {
    case kSpaceCode:
        return KeyRole::Space;
    case kEnterCode:
        return KeyRole::Enter;
    case kBackspaceCode:
        return KeyRole::Backspace;
    default:
        break;
    }
    const bool isTyping =
        std::any_of(kTypingCodes.begin(), kTypingCodes.end(),
                    [code](const CodeRange& range) { return code >= range.first && code <= range.last; });
    return isTyping ? KeyRole::Typing : KeyRole::Other;
}

struct NamedRole {
    std::string_view name;
    KeyRole role;
};

constexpr std::array kNamedKeys{
    NamedRole{"space", KeyRole::Space},
    NamedRole{"spacebar", KeyRole::Space},
    NamedRole{" ", KeyRole::Space},
    NamedRole{"enter", KeyRole::Enter},
    NamedRole{"return", KeyRole::Enter},
    NamedRole{"numpadenter", KeyRole::KeypadEnter},
    NamedRole{"kpenter", KeyRole::KeypadEnter},
    NamedRole{"kp_enter", KeyRole::KeypadEnter},
    NamedRole{"backspace", KeyRole::Backspace},
    NamedRole{"back", KeyRole::Backspace},
    NamedRole{"delete", KeyRole::Delete},
    NamedRole{"del", KeyRole::Delete},
    NamedRole{"default", KeyRole::Typing},
    NamedRole{"standard", KeyRole::Typing},
    NamedRole{"generic", KeyRole::Typing},
    NamedRole{"normal", KeyRole::Typing},
    NamedRole{"key", KeyRole::Typing},
    NamedRole{"keys", KeyRole::Typing},
    NamedRole{"any", KeyRole::Typing},
    NamedRole{"*", KeyRole::Typing},
    NamedRole{"minus", KeyRole::Typing},
    NamedRole{"equal", KeyRole::Typing},
    NamedRole{"bracketleft", KeyRole::Typing},
    NamedRole{"bracketright", KeyRole::Typing},
    NamedRole{"semicolon", KeyRole::Typing},
    NamedRole{"quote", KeyRole::Typing},
    NamedRole{"backquote", KeyRole::Typing},
    NamedRole{"backslash", KeyRole::Typing},
    NamedRole{"intlbackslash", KeyRole::Typing},
    NamedRole{"comma", KeyRole::Typing},
    NamedRole{"period", KeyRole::Typing},
    NamedRole{"slash", KeyRole::Typing},
};

constexpr std::array kNamedRoles{
    NamedRole{"backspace", KeyRole::Backspace}, NamedRole{"back", KeyRole::Backspace},
    NamedRole{"delete", KeyRole::Delete},       NamedRole{"del", KeyRole::Delete},
    NamedRole{"spacebar", KeyRole::Space},      NamedRole{"space", KeyRole::Space},
    NamedRole{"enter", KeyRole::Enter},         NamedRole{"return", KeyRole::Enter},
    NamedRole{"generic", KeyRole::Typing},      NamedRole{"standard", KeyRole::Typing},
    NamedRole{"default", KeyRole::Typing},      NamedRole{"normal", KeyRole::Typing},
    NamedRole{"alpha", KeyRole::Typing},        NamedRole{"alphas", KeyRole::Typing},
    NamedRole{"letter", KeyRole::Typing},       NamedRole{"letters", KeyRole::Typing},
    NamedRole{"key", KeyRole::Typing},          NamedRole{"keys", KeyRole::Typing},
    NamedRole{"mod", KeyRole::Other},           NamedRole{"mods", KeyRole::Other},
    NamedRole{"modifier", KeyRole::Other},      NamedRole{"modifiers", KeyRole::Other},
    NamedRole{"shift", KeyRole::Other},         NamedRole{"ctrl", KeyRole::Other},
    NamedRole{"control", KeyRole::Other},       NamedRole{"alt", KeyRole::Other},
    NamedRole{"tab", KeyRole::Other},           NamedRole{"caps", KeyRole::Other},
    NamedRole{"capslock", KeyRole::Other},      NamedRole{"esc", KeyRole::Other},
    NamedRole{"escape", KeyRole::Other},        NamedRole{"arrow", KeyRole::Other},
    NamedRole{"arrows", KeyRole::Other},        NamedRole{"numpad", KeyRole::Other},
    NamedRole{"function", KeyRole::Other},
};

constexpr std::array<std::string_view, 8> kDownWords{"press",   "presses", "pressed",    "down",
                                                     "keydown", "push",    "downstroke", "pushed"};
constexpr std::array<std::string_view, 7> kUpWords{"release", "releases", "released", "up",
                                                   "keyup",   "upstroke", "upstrokes"};

/// The runs of letters in a name, in lower case.
std::vector<std::string> wordsOf(std::string_view name)
{
    std::vector<std::string> words(1);
    for (const char c : lowerCased(name)) {
        if (c >= 'a' && c <= 'z') {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    return words;
}

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& words, std::string_view word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

KeyRole roleOfScanCode(std::uint32_t code) noexcept
{
    constexpr std::uint32_t kExtendedEnter = 0x0E1C;
    constexpr std::uint32_t kExtendedDelete = 0x0E53;
    if (code == kExtendedEnter) {
        return KeyRole::KeypadEnter;
    }
    return code == kExtendedDelete ? KeyRole::Delete : roleOfPlainCode(code);
}

KeyRole roleOfEventCode(std::uint32_t code) noexcept
{
    constexpr std::uint32_t kKeypadEnter = 96;
    constexpr std::uint32_t kDelete = 111;
    if (code == kKeypadEnter) {
        return KeyRole::KeypadEnter;
    }
    return code == kDelete ? KeyRole::Delete : roleOfPlainCode(code);
}

KeyRole roleOfKeyName(std::string_view name)
{
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), code);
    if (error == std::errc() && end == name.data() + name.size() && name.size() > 1) {
        return roleOfScanCode(code);
    }
    const std::string lower = lowerCased(name);
    const auto named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                    [&](const auto& row) { return row.name == lower; });
    if (named != kNamedKeys.end()) {
        return named->role;
    }
    const bool isLetter = lower.size() == 4 && lower.starts_with("key");
    const bool isDigit = lower.size() == 6 && lower.starts_with("digit");
    return name.size() == 1 || isLetter || isDigit ? KeyRole::Typing : KeyRole::Other;
}

std::optional<KeyRole> roleNamedBy(std::string_view fileOrFolder)
{
    for (const std::string& word : wordsOf(fileOrFolder)) {
        const auto named = std::find_if(kNamedRoles.begin(), kNamedRoles.end(),
                                        [&](const auto& row) { return row.name == word; });
        if (named != kNamedRoles.end()) {
            return named->role;
        }
    }
    return std::nullopt;
}

std::optional<KeyStrokeAction> directionNamedBy(std::string_view fileOrFolder)
{
    for (const std::string& word : wordsOf(fileOrFolder)) {
        if (contains(kUpWords, word)) {
            return KeyStrokeAction::up;
        }
        if (contains(kDownWords, word)) {
            return KeyStrokeAction::down;
        }
    }
    return std::nullopt;
}

} // namespace tocca::audio
