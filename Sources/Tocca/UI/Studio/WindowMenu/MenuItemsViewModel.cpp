#include "UI/Studio/WindowMenu/MenuItemsViewModel.h"

#include "UI/Quick/UiProperty.h"
#include "UI/Studio/WindowMenu/KeyEquivalentText.h"

#include <utility>

namespace tocca::ui {

void MenuItemsViewModel::show(std::vector<ShownMenuItem> items)
{
    beginResetModel();
    items_ = std::move(items);
    endResetModel();
}

int MenuItemsViewModel::next(int row, int step) const
{
    const int count = rowCount();
    for (int tried = 0; tried < count; ++tried) {
        row = (row + step + count) % count;
        const ShownMenuItem& candidate = item(row);
        if (!candidate.item.action.empty() && candidate.state.isEnabled) {
            return row;
        }
    }
    return -1;
}

int MenuItemsViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant MenuItemsViewModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto& [shown, state] = item(index.row());
    switch (role) {
    case Title:
        return toQString(shown.title);
    case Shortcut:
        return toQString(keyEquivalentText(shown.keyEquivalent));
    case IsSeparator:
        return shown.action.empty();
    case IsEnabled:
        return state.isEnabled;
    case IsChecked:
        return state.isChecked;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuItemsViewModel::roleNames() const
{
    return {{Title, "title"},
            {Shortcut, "shortcut"},
            {IsSeparator, "isSeparator"},
            {IsEnabled, "isEnabled"},
            {IsChecked, "isChecked"}};
}

} // namespace tocca::ui
