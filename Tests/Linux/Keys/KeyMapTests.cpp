#include "Platform/Linux/Keys/KeyMap.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tocca::platform::linux {

namespace {

TEST(KeyMap, KnowsTheKeysThatSoundSpecialOrLieDifferentlyOnSomeBoards)
{
    const struct {
        const char* name;
        std::uint32_t kernel;
        std::uint16_t keyCode;
    } kRows[] = {
        {"A", KEY_A, 0},
        {"space", KEY_SPACE, 49},
        {"return", KEY_ENTER, 36},
        {"keypad enter", KEY_KPENTER, 76},
        {"backspace", KEY_BACKSPACE, 51},
        {"forward delete", KEY_DELETE, 117},
        {"ISO key beside left shift, at the left like the one above tab", KEY_102ND, 50},
        {"ISO and JIS key above return", KEY_BACKSLASH, 42},
        {"JIS key beside right shift", KEY_RO, 94},
        {"JIS key beside backspace", KEY_YEN, 93},
        {"JIS keys beside the space bar", KEY_HENKAN, 104},
        {"Korean key beside the space bar", KEY_HANJA, 102},
        {"keypad comma", KEY_KPCOMMA, 95},
        {"up", KEY_UP, 126},
        {"F1", KEY_F1, 122},
        {"F20", KEY_F20, 90},
        {"print screen, where F13 is", KEY_SYSRQ, 105},
        {"num lock, where clear is", KEY_NUMLOCK, 71},
        {"a key of laptops", KEY_BRIGHTNESSUP, kForeignKey + KEY_BRIGHTNESSUP},
        {"beyond the kernel's codes", 0xFFFFFFFF, kForeignKey + 0xFFF},
    };

    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(keyCodeOf(row.kernel), row.keyCode);
    }
}

TEST(KeyMap, CoversEveryKeyOfTheBoardsAndSharesCodesOnlyWhereBoardsDiffer)
{
    std::map<std::uint16_t, std::vector<std::uint32_t>> kernelKeys;
    for (std::uint32_t kernel = 0; kernel < kKernelKeys; ++kernel) {
        kernelKeys[keyCodeOf(kernel)].push_back(kernel);
    }
    // These numbers belong to no key of any board; 10 is the key above Tab of ISO boards, which the kernel calls by the name it has on others.
    const std::set<std::uint16_t> kNoKeys{10, 52, 66, 68, 70, 77, 108, 112};
    for (std::uint16_t keyCode = 0; keyCode <= 126; ++keyCode) {
        SCOPED_TRACE(keyCode);
        EXPECT_EQ(kernelKeys.contains(keyCode), !kNoKeys.contains(keyCode));
    }
    const std::set<std::uint16_t> kShared{50, 102, 104, 105, 107, 113};
    for (const auto& [keyCode, keys] : kernelKeys) {
        SCOPED_TRACE(keyCode);
        EXPECT_EQ(keys.size(), kShared.contains(keyCode) ? 2U : 1U);
    }
}

} // namespace

} // namespace tocca::platform::linux
