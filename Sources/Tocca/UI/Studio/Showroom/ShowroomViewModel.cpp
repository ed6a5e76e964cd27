#include "UI/Studio/Showroom/ShowroomViewModel.h"

#include "UI/SwitchSelection.h"

#include <algorithm>
#include <utility>

namespace tocca::ui {
namespace {

std::vector<RowsModel<ShowroomCard>::Role> roles()
{
    using Cards = RowsModel<ShowroomCard>;
    return {Cards::role<&ShowroomCard::title>("title"),
            Cards::role<&ShowroomCard::subtitle>("subtitle"),
            Cards::role<&ShowroomCard::tag>("tag"),
            Cards::role<&ShowroomCard::weight>("weight"),
            Cards::role<&ShowroomCard::profile>("profile"),
            Cards::role<&ShowroomCard::isCustom>("isCustom"),
            Cards::role<&ShowroomCard::isSelected>("isSelected")};
}

} // namespace

ShowroomViewModel::ShowroomViewModel(const Controllers& controllers)
    : engine_(controllers.audioEngine)
    , cards_(roles())
{
    auto& packs = controllers.soundPackLoader.availableCustomPacks;
    catalogue_.setCustomPacks(packs.get());
    refreshPage();
    links_ = {packs.onChange([this](const auto& changed) {
                  catalogue_.setCustomPacks(changed);
                  refreshPage();
              }),
              engine_.selectedCustomPack.onChange([this](const auto&) { refreshCards(); }),
              engine_.currentSwitchType.onChange([this](const auto&) { refreshCards(); })};
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

void ShowroomViewModel::search(const QString& text)
{
    catalogue_.setSearchText(text.toStdString());
    refreshPage();
}

void ShowroomViewModel::chooseFilter(int index)
{
    const auto& options = ShowroomCatalogue::filterOptions;
    if (index >= 0 && static_cast<std::size_t>(index) < options.size()) {
        catalogue_.setSelectedFilter(std::string(options.at(static_cast<std::size_t>(index))));
        refreshPage();
    }
}

void ShowroomViewModel::showPreviousPage()
{
    catalogue_.showPreviousPage();
    refreshPage();
}

void ShowroomViewModel::showNextPage()
{
    catalogue_.showNextPage();
    refreshPage();
}

void ShowroomViewModel::select(int row)
{
    if (cards_.at(row) == nullptr) {
        return;
    }
    const ShowroomItem& item = *catalogue_.paginatedShowroomItems()[static_cast<std::size_t>(row)];
    if (item.customPack) {
        switchSelection::select(engine_, *item.customPack);
    } else if (item.switchType) {
        switchSelection::select(engine_, *item.switchType);
    }
}

void ShowroomViewModel::refreshCards()
{
    std::vector<ShowroomCard> cards;
    for (const ShowroomItem* item : catalogue_.paginatedShowroomItems()) {
        cards.push_back({.title = toQString(item->title),
                         .subtitle = toQString(item->subtitle),
                         .tag = toQString(item->tag).toUpper(),
                         .weight = toQString(item->weight),
                         .profile = toQString(item->profile).toUpper(),
                         .isCustom = item->isCustom,
                         .isSelected = item->customPack
                                           ? switchSelection::isSelected(engine_, *item->customPack)
                                           : switchSelection::isSelected(engine_, *item->switchType)});
    }
    cards_.show(std::move(cards));
}

void ShowroomViewModel::refreshPage()
{
    refreshCards();
    Q_EMIT pageChanged();
}

} // namespace tocca::ui
