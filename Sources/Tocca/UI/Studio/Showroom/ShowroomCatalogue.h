#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "UI/Pages.h"
#include "UI/Studio/Showroom/ShowroomItem.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::ui {

/// The list behind the showroom: the built-in switches and the imported packs that pass search and filter, a page at a time.
///
/// Names are made ready for searching once, when the packs change, so that a key typed into the search costs one pass over them.
/// Threads: one at a time.
class ShowroomCatalogue {
public:
    static constexpr std::size_t switchesPerPage = 6;
    static constexpr std::array<std::string_view, 6> filterOptions{"All",    "Tactile", "Clicky",
                                                                   "Linear", "Vintage", "Novelty"};

    ShowroomCatalogue();

    void setCustomPacks(const std::vector<audio::SoundPackInfo>& packs);

    /// Leaves the page where it is.
    void setSearchText(std::string text);

    /// Returns to the first page.
    void setSelectedFilter(std::string filter);

    void showPreviousPage() noexcept { pages_.turnBack(); }

    void showNextPage() noexcept { pages_.turnForward(); }

    [[nodiscard]] const std::string& searchText() const noexcept { return searchText_; }

    [[nodiscard]] const std::string& selectedFilter() const noexcept { return selectedFilter_; }

    [[nodiscard]] const Pages& pages() const noexcept { return pages_; }

    /// Everything that passes. Lifetime: until the next change, as the page's items.
    [[nodiscard]] std::span<const ShowroomItem* const> allShowroomItems() const noexcept { return matches_; }

    /// The page's part of it: the last page where the one asked for lies beyond.
    [[nodiscard]] std::span<const ShowroomItem* const> paginatedShowroomItems() const noexcept;

    /// "SHOWING 7–12 OF 13 SWITCHES (6 PER PAGE)".
    [[nodiscard]] std::string summary() const;

private:
    struct Entry {
        explicit Entry(ShowroomItem shown);

        ShowroomItem item;
        std::string title; // as they are searched
        std::string subtitle;
    };

    void match();

    std::vector<Entry> entries_;
    std::vector<const ShowroomItem*> matches_; // into entries_
    std::string searchText_;
    std::string selectedFilter_{filterOptions.front()};
    Pages pages_{.size = switchesPerPage};
};

} // namespace tocca::ui
