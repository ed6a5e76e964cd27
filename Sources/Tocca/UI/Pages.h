#pragma once

#include <algorithm>
#include <cstddef>

namespace tocca::ui {

/// Which part of a list is shown when it is shown a page at a time. Threads: any.
struct Pages {
    std::size_t size = 1;   ///< items on a full page
    std::size_t count = 0;  ///< items in all
    std::size_t stored = 1; ///< the page turned to, from 1; a list that shrinks leaves it beyond the last

    [[nodiscard]] std::size_t total() const noexcept
    {
        return std::max<std::size_t>(1, (count + size - 1) / size);
    }

    /// The page shown: the stored one, or the last.
    [[nodiscard]] std::size_t shown() const noexcept { return std::min(stored, total()); }

    /// Index of the first item shown, and index after the last.
    [[nodiscard]] std::size_t first() const noexcept { return (shown() - 1) * size; }

    [[nodiscard]] std::size_t end() const noexcept { return std::min(count, shown() * size); }

    [[nodiscard]] bool canTurnBack() const noexcept { return stored > 1; }

    [[nodiscard]] bool canTurnForward() const noexcept { return stored < total(); }

    void turnBack() noexcept
    {
        if (canTurnBack()) {
            --stored;
        }
    }

    void turnForward() noexcept
    {
        if (canTurnForward()) {
            ++stored;
        }
    }
};

} // namespace tocca::ui
