#include "UI/Studio/WindowMenu/MainMenuViewModel.h"

#include "UI/Quick/UiProperty.h"

namespace tocca::ui {

MainMenuViewModel::MainMenuViewModel(platform::MainMenu& menu)
    : menu_(menu)
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
    if (openMenu_ < 0) {
        shown_.clear();
        for (const platform::Menu& menu : menu_.menus()) {
            auto& items = shown_.emplace_back();
            for (const platform::MenuItem& item : menu.items) {
                items.push_back({.item = item, .state = menu_.validate(item)});
            }
        }
    }
    openMenu_ = index;
    items_.show(shown_.at(static_cast<std::size_t>(index)));
    Q_EMIT openMenuChanged();
}

void MainMenuViewModel::close()
{
    openMenu_ = -1;
    Q_EMIT openMenuChanged();
}

void MainMenuViewModel::perform(int row)
{
    const platform::MenuItem item = items_.item(row).item;
    menu_.perform(item);
}

} // namespace tocca::ui
