#include "Model/Slot.h"

namespace tocca::soundpack {

namespace {

std::string_view actionName(Action action)
{
    return action == Action::Press ? "press" : "release";
}

std::string_view fileWord(Key key)
{
    switch (key) {
    case Key::Space:
        return "space";
    case Key::Enter:
        return "enter";
    case Key::Back:
        return "back";
    case Key::Standard:
        break;
    }
    return "standard";
}

} // namespace

std::string fileStem(const Slot& slot)
{
    return std::string(actionName(slot.action)) + '_' + std::string(fileWord(slot.key));
}

std::string fileName(const Slot& slot, std::size_t variant)
{
    return fileStem(slot) + '_' + std::to_string(variant + 1) + ".wav";
}

std::string streamName(const Slot& slot)
{
    const auto key = slot.key == Key::Standard ? std::string_view("std") : fileWord(slot.key);
    return std::string(key) + '/' + std::string(actionName(slot.action));
}

} // namespace tocca::soundpack
