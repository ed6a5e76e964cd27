#include "UI/Studio/Showroom/ShowroomCatalogue.h"

#include "Support/SearchText.h"

#include <algorithm>
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
    showroomPage_ = 1;
    match();
}

void ShowroomCatalogue::showPreviousPage()
{
    if (canShowPreviousPage()) {
        --showroomPage_;
    }
}

void ShowroomCatalogue::showNextPage()
{
    if (canShowNextPage()) {
        ++showroomPage_;
    }
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
}

std::span<const ShowroomItem* const> ShowroomCatalogue::paginatedShowroomItems() const noexcept
{
    const std::span all = allShowroomItems();
    const auto first = static_cast<std::size_t>(currentPage() - 1) * switchesPerPage;
    return all.subspan(first, std::min<std::size_t>(switchesPerPage, all.size() - first));
}

int ShowroomCatalogue::pageCount() const noexcept
{
    const auto count = static_cast<int>(matches_.size());
    return std::max(1, (count + switchesPerPage - 1) / switchesPerPage);
}

int ShowroomCatalogue::currentPage() const noexcept
{
    return std::min(showroomPage_, pageCount());
}

std::string ShowroomCatalogue::summary() const
{
    const auto count = static_cast<int>(matches_.size());
    const int first = count == 0 ? 0 : (currentPage() - 1) * switchesPerPage + 1;
    const int last = std::min(count, showroomPage_ * switchesPerPage);
    return "SHOWING " + std::to_string(first) + "–" + std::to_string(last) + " OF " + std::to_string(count) +
           " SWITCHES (6 PER PAGE)";
}

} // namespace tocca::ui
