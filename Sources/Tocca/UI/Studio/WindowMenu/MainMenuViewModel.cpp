#include "UI/Studio/WindowMenu/MainMenuViewModel.h"

#include "UI/Quick/UiProperty.h"
#include "UI/Studio/WindowMenu/KeyEquivalentText.h"

namespace tocca::ui {
namespace {

using Items = RowsModel<ShownMenuItem>;

ShownMenuItem shown(const platform::MenuItem& item, const platform::MenuItemState& state)
{
    return {.title = toQString(item.title),
            .shortcut = toQString(keyEquivalentText(item.keyEquivalent)),
            .isSeparator = item.action.empty(),
            .isEnabled = state.isEnabled,
            .isCheckable = item.isCheckable,
            .isChecked = state.isChecked};
}

} // namespace

MainMenuViewModel::MainMenuViewModel(platform::MainMenu& menu)
    : menu_(menu)
    , items_({Items::role<&ShownMenuItem::title>("title"), Items::role<&ShownMenuItem::shortcut>("shortcut"),
              Items::role<&ShownMenuItem::isSeparator>("isSeparator"),
              Items::role<&ShownMenuItem::isEnabled>("isEnabled"),
              Items::role<&ShownMenuItem::isCheckable>("isCheckable"),
              Items::role<&ShownMenuItem::isChecked>("isChecked")})
    , desktopLink_(menu.onDesktopChange([this] { Q_EMIT desktopChanged(); }))
{}

bool MainMenuViewModel::isShown() const
{
    return !menu_.isShownByDesktop() && !menu_.menus().empty();
}

QStringList MainMenuViewModel::titles() const
{
    QStringList titles;
    for (const platform::Menu& menu : menu_.menus()) {
        titles.append(menu.title.empty() ? QStringLiteral("Tocca") : toQString(menu.title));
    }
    return titles;
}

void MainMenuViewModel::open(int index)
{
    const auto& menus = menu_.menus();
    if (index < 0 || index >= static_cast<int>(menus.size())) {
        return;
    }
    if (openMenu_ < 0) {
        shown_.clear();
        for (const platform::Menu& menu : menus) {
            auto& items = shown_.emplace_back();
            for (const platform::MenuItem& item : menu.items) {
                items.push_back(shown(item, menu_.validate(item)));
            }
        }
    }
    openMenu_ = index;
    lastOpened_ = index;
    items_.show(shown_.at(static_cast<std::size_t>(index)));
    Q_EMIT openMenuChanged();
}

void MainMenuViewModel::close()
{
    openMenu_ = -1;
    Q_EMIT openMenuChanged();
}

int MainMenuViewModel::nextItem(int row, int step) const
{
    const int count = items_.rowCount();
    for (int tried = 0; tried < count; ++tried) {
        row = (row + step + count) % count;
        const ShownMenuItem* const item = items_.at(row);
        if (item != nullptr && !item->isSeparator && item->isEnabled) {
            return row;
        }
    }
    return -1;
}

void MainMenuViewModel::perform(int row)
{
    if (items_.at(row) != nullptr) {
        const platform::MenuItem item =
            menu_.menus().at(static_cast<std::size_t>(lastOpened_)).items.at(static_cast<std::size_t>(row));
        menu_.perform(item);
    }
}

} // namespace tocca::ui
