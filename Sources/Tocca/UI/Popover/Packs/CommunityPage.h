#pragma once

#include <cstddef>
#include <string>

namespace tocca::ui {

/// Which of the imported packs the community library shows. Threads: any.
struct CommunityPage {
    static constexpr std::size_t kPageSize = 4;

    std::size_t count = 0;  ///< imported packs
    std::size_t stored = 1; ///< the page turned to, from 1; packs that disappear leave it beyond the last

    [[nodiscard]] std::size_t totalPages() const noexcept;

    /// The page shown: the stored one, or the last.
    [[nodiscard]] std::size_t page() const noexcept;

    /// Index of the first pack shown.
    [[nodiscard]] std::size_t first() const noexcept { return (page() - 1) * kPageSize; }

    /// Index after the last pack shown.
    [[nodiscard]] std::size_t end() const noexcept;

    [[nodiscard]] bool canTurnBack() const noexcept { return stored >= 2; }

    [[nodiscard]] bool canTurnForward() const noexcept { return stored < totalPages(); }

    void turnBack() noexcept;
    void turnForward() noexcept;

    /// "COMMUNITY LIBRARY (9 SWITCHES)".
    [[nodiscard]] std::string title() const;

    /// "2/3".
    [[nodiscard]] std::string position() const;
};

} // namespace tocca::ui
