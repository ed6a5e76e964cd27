#include "UI/Studio/Stage/MiniKeyboardViewModel.h"

#include "Keyboard/KeyboardMonitor.h"
#include "UI/Quick/UiProperty.h"

#include <utility>

namespace tocca::ui {

MiniKeyboardViewModel::MiniKeyboardViewModel(keyboard::KeyboardMonitor& monitor)
{
    using Caps = RowsModel<KeyCap>;
    const std::vector roles{Caps::role<&KeyCap::label>("label"), Caps::role<&KeyCap::labelSize>("labelSize"),
                            Caps::role<&KeyCap::widthRatio>("widthRatio"),
                            Caps::role<&KeyCap::isActive>("isActive")};
    for (int index = 0; index < miniKeyboard::kRowCount; ++index) {
        auto& row = *rows_.emplace_back(new Caps(roles, this));
        std::vector<KeyCap> caps;
        for (const VisualKey& key : miniKeyboard::row(index)) {
            caps.push_back({.label = toQString(key.label),
                            .labelSize = key.labelSize(),
                            .widthRatio = key.widthRatio,
                            .code = key.code});
        }
        row.show(std::move(caps));
    }
    const auto light = [this](const std::optional<std::uint16_t>& code) {
        for (auto* const row : rows_) {
            auto caps = row->rows();
            for (KeyCap& cap : caps) {
                cap.isActive = cap.code == code;
            }
            row->show(std::move(caps));
        }
    };
    light(monitor.activeKeyCode.get());
    link_ = monitor.activeKeyCode.onChange(light);
}

QAbstractItemModel* MiniKeyboardViewModel::row(int index) const
{
    return rows_.at(static_cast<std::size_t>(index));
}

double MiniKeyboardViewModel::unitWidth(int row, double available)
{
    return miniKeyboard::unitWidth(miniKeyboard::row(row), available);
}

} // namespace tocca::ui
