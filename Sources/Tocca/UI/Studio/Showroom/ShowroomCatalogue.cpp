#include "UI/Studio/Showroom/ShowroomCatalogue.h"

#include "Support/SearchText.h"

#include <utility>

namespace tocca::ui {

ShowroomCatalogue::Entry::Entry(ShowroomItem shown)
    : item(std::move(shown))
    , title(searchForm(item.title))
    , subtitle(searchForm(item.subtitle))
{}

ShowroomCatalogue::ShowroomCatalogue()
{
    setCustomPacks({});
}

void ShowroomCatalogue::setCustomPacks(const std::vector<audio::SoundPackInfo>& packs)
{
    entries_.clear();
    entries_.reserve(audio::SwitchType::allCases.size() + packs.size());
    for (const audio::SwitchType switchType : audio::SwitchType::allCases) {
        entries_.emplace_back(ShowroomItem::of(switchType));
    }
    for (const audio::SoundPackInfo& pack : packs) {
        entries_.emplace_back(ShowroomItem::of(pack));
    }
    match();
}

void ShowroomCatalogue::setSearchText(std::string text)
{
    searchText_ = std::move(text);
    match();
}

void ShowroomCatalogue::setSelectedFilter(std::string filter)
{
    selectedFilter_ = std::move(filter);
    pages_.stored = 1;
    match();
}

void ShowroomCatalogue::match()
{
    const std::string search = searchForm(searchText_);
    const bool takesEveryTag = selectedFilter_ == filterOptions.front();
    matches_.clear();
    for (const Entry& entry : entries_) {
        const bool passes = (takesEveryTag || entry.item.tag == selectedFilter_) &&
                            (search.empty() || entry.title.find(search) != std::string::npos ||
                             entry.subtitle.find(search) != std::string::npos);
        if (passes) {
            matches_.push_back(&entry.item);
        }
    }
    pages_.count = matches_.size();
}

std::span<const ShowroomItem* const> ShowroomCatalogue::paginatedShowroomItems() const noexcept
{
    return allShowroomItems().subspan(pages_.first(), pages_.end() - pages_.first());
}

std::string ShowroomCatalogue::summary() const
{
    const std::size_t first = pages_.count == 0 ? 0 : pages_.first() + 1;
    return "SHOWING " + std::to_string(first) + "–" + std::to_string(pages_.end()) + " OF " +
           std::to_string(pages_.count) + " SWITCHES (6 PER PAGE)";
}

} // namespace tocca::ui
