#include "UI/Studio/Stage/MiniKeyboardViewModel.h"

#include "Keyboard/KeyboardMonitor.h"

namespace tocca::ui {

MiniKeyboardViewModel::MiniKeyboardViewModel(keyboard::KeyboardMonitor& monitor)
{
    int index = 0;
    for (auto& row : rows_) {
        row = new MiniKeyboardRowViewModel(miniKeyboard::row(index++), this);
    }
    const auto light = [this](const std::optional<std::uint16_t>& code) {
        for (auto* const row : rows_) {
            row->light(code);
        }
    };
    light(monitor.activeKeyCode.get());
    link_ = monitor.activeKeyCode.onChange(light);
}

MiniKeyboardRowViewModel* MiniKeyboardViewModel::row(int index) const
{
    return rows_.at(static_cast<std::size_t>(index));
}

} // namespace tocca::ui
