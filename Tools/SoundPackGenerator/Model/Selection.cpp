#include "Model/Selection.h"

#include <algorithm>
#include <stdexcept>

namespace tocca::soundpack {

const std::vector<Selection>& selections()
{
    static const std::vector<Selection> all{
        {"holy-panda", {Key::Standard, Action::Press}, {0, 2, 5, 9, 17, 18, 31, 32}, -19.14},
        {"holy-panda", {Key::Standard, Action::Release}, {0, 3, 6, 7, 8, 9, 10, 12}, -19.55},
        {"holy-panda", {Key::Space, Action::Press}, {2, 3, 11, 12}, -21.14},
        {"holy-panda", {Key::Space, Action::Release}, {1, 6, 7, 9}, -21.74},
        {"holy-panda", {Key::Enter, Action::Press}, {3, 4, 5, 7}, -19.71},
        {"holy-panda", {Key::Enter, Action::Release}, {0, 4, 6, 7}, -21.52},
        {"holy-panda", {Key::Back, Action::Press}, {4, 7, 17, 26}, -19.78},
        {"holy-panda", {Key::Back, Action::Release}, {12, 17, 18, 19}, -20.04},
        {"nk-cream", {Key::Standard, Action::Press}, {1, 5, 6, 11, 12, 13, 15, 20}, -17.13},
        {"nk-cream", {Key::Standard, Action::Release}, {1, 7, 9, 13, 15, 20, 24, 37}, -16.75},
        {"nk-cream", {Key::Space, Action::Press}, {1, 2, 6, 9}, -18.26},
        {"nk-cream", {Key::Space, Action::Release}, {3, 6, 7, 8}, -18.61},
        {"nk-cream", {Key::Enter, Action::Press}, {4, 6, 7, 10}, -18.90},
        {"nk-cream", {Key::Enter, Action::Release}, {4, 10, 11, 16}, -17.58},
        {"nk-cream", {Key::Back, Action::Press}, {0, 3, 4, 8}, -17.50},
        {"nk-cream", {Key::Back, Action::Release}, {1, 7, 9, 15}, -17.96},
        {"mx-brown", {Key::Standard, Action::Press}, {3, 8, 9, 11, 21, 24, 25, 26}, -17.84},
        {"mx-brown", {Key::Standard, Action::Release}, {4, 6, 7, 18, 20, 26, 27, 29}, -18.35},
        {"mx-brown", {Key::Space, Action::Press}, {17, 20, 21, 22}, -18.36},
        {"mx-brown", {Key::Space, Action::Release}, {0, 7, 8, 15}, -18.89},
        {"mx-brown", {Key::Enter, Action::Press}, {10, 14, 27, 30}, -17.43},
        {"mx-brown", {Key::Enter, Action::Release}, {0, 7, 9, 13}, -18.11},
        {"mx-brown", {Key::Back, Action::Press}, {1, 2, 23, 25}, -17.43},
        {"mx-brown", {Key::Back, Action::Release}, {0, 4, 6, 7}, -18.58},
        {"typewriter", {Key::Standard, Action::Press}, {1, 13, 16, 17, 21, 30, 32, 40}, -18.91},
        {"typewriter", {Key::Standard, Action::Release}, {1, 2, 13, 14, 17, 20, 23, 25}, -12.53},
        {"typewriter", {Key::Space, Action::Press}, {6, 8, 23, 26}, -16.05},
        {"typewriter", {Key::Space, Action::Release}, {7, 19, 46, 47}, -11.91},
        {"typewriter", {Key::Enter, Action::Press}, {3, 5, 17, 19}, -21.29},
        {"typewriter", {Key::Enter, Action::Release}, {4, 5, 6, 9}, -11.84},
        {"typewriter", {Key::Back, Action::Press}, {1, 3, 4, 16}, -17.93},
        {"typewriter", {Key::Back, Action::Release}, {3, 14, 15, 16}, -12.80},
        {"mx-blue", {Key::Standard, Action::Press}, {3, 6, 8, 9, 15, 16, 17, 18}, -18.61},
        {"mx-blue", {Key::Standard, Action::Release}, {0, 2, 3, 7, 8, 9, 10, 12}, -17.76},
        {"mx-blue", {Key::Space, Action::Press}, {1, 4, 11, 13}, -18.56},
        {"mx-blue", {Key::Space, Action::Release}, {2, 4, 12, 15}, -18.77},
        {"mx-blue", {Key::Enter, Action::Press}, {1, 3, 4, 5}, -17.13},
        {"mx-blue", {Key::Enter, Action::Release}, {7, 8, 10, 11}, -16.88},
        {"mx-blue", {Key::Back, Action::Press}, {2, 3, 5, 6}, -18.06},
        {"mx-blue", {Key::Back, Action::Release}, {0, 3, 13, 19}, -17.82},
    };
    return all;
}

const Selection& selectionOf(std::string_view folder, const Slot& slot)
{
    const auto found = std::ranges::find_if(selections(), [&](const Selection& selection) {
        return selection.folder == folder && selection.slot == slot;
    });
    if (found == selections().end()) {
        throw std::out_of_range("no selection for " + std::string(folder) + '/' + fileStem(slot));
    }
    return *found;
}

} // namespace tocca::soundpack
