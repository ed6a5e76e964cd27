#include "Sentence.h"

#include <array>
#include <linux/input-event-codes.h>

namespace tocca::demonstration {

std::vector<std::uint16_t> keysFor(std::string_view text)
{
    static constexpr std::array<std::uint16_t, 26> kLetters{
        KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I, KEY_J, KEY_K, KEY_L, KEY_M,
        KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R, KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z};
    std::vector<std::uint16_t> keys;
    for (const char character : text) {
        if (character == ' ') {
            keys.push_back(KEY_SPACE);
        } else if (character >= 'a' && character <= 'z') {
            keys.push_back(kLetters.at(static_cast<std::size_t>(character - 'a')));
        }
    }
    return keys;
}

} // namespace tocca::demonstration
