#include "UI/Studio/Showroom/ShowroomViewModel.h"

#include "UI/Studio/Showroom/SwitchSelection.h"

#include <algorithm>

namespace tocca::ui {

ShowroomViewModel::ShowroomViewModel(const Controllers& controllers)
    : engine_(controllers.audioEngine)
    , notchHUD_(controllers.notchHUD)
{
    auto& packs = controllers.soundPackLoader.availableCustomPacks;
    catalogue_.setCustomPacks(packs.get());
    refresh();
    packLink_ = packs.onChange([this](const auto& changed) {
        catalogue_.setCustomPacks(changed);
        refresh();
    });
    customPackLink_ = engine_.selectedCustomPack.onChange([this](const auto&) { cards_.refreshSelection(); });
    switchTypeLink_ = engine_.currentSwitchType.onChange([this](const auto&) { cards_.refreshSelection(); });
}

QStringList ShowroomViewModel::filterOptions()
{
    QStringList options;
    for (const std::string_view option : ShowroomCatalogue::filterOptions) {
        options.append(toQString(option).toUpper());
    }
    return options;
}

int ShowroomViewModel::filterIndex() const
{
    const auto& options = ShowroomCatalogue::filterOptions;
    const auto* const found = std::find(options.begin(), options.end(), catalogue_.selectedFilter());
    return static_cast<int>(found - options.begin());
}

void ShowroomViewModel::toggleNotchHUD()
{
    notchHUD_.isEnabled.set(!notchHUD_.isEnabled.get());
}

void ShowroomViewModel::search(const QString& text)
{
    catalogue_.setSearchText(text.toStdString());
    refresh();
}

void ShowroomViewModel::chooseFilter(int index)
{
    catalogue_.setSelectedFilter(
        std::string(ShowroomCatalogue::filterOptions.at(static_cast<std::size_t>(index))));
    refresh();
}

void ShowroomViewModel::showPreviousPage()
{
    catalogue_.showPreviousPage();
    refresh();
}

void ShowroomViewModel::showNextPage()
{
    catalogue_.showNextPage();
    refresh();
}

void ShowroomViewModel::select(int row)
{
    switchSelection::select(cards_.item(row), engine_);
}

void ShowroomViewModel::refresh()
{
    cards_.show(catalogue_.paginatedShowroomItems());
    Q_EMIT pageChanged();
}

} // namespace tocca::ui
