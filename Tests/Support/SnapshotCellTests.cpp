#include "Support/SnapshotCell.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace tocca {
namespace {

TEST(SnapshotCell, NeverMixesTwoWrites)
{
    struct Wide {
        std::array<std::uint32_t, 33> words{};
    };

    SnapshotCell<Wide> cell(Wide{});
    std::atomic<bool> isDone{false};
    std::thread writer([&] {
        Wide wide;
        for (std::uint32_t i = 1; i <= 100'000; ++i) {
            wide.words.fill(i);
            cell.store(wide);
        }
        isDone = true;
    });
    std::uint32_t last = 0;
    while (!isDone) {
        const Wide seen = cell.load();
        for (const auto word : seen.words) {
            ASSERT_EQ(word, seen.words[0]);
        }
        ASSERT_GE(seen.words[0], last);
        last = seen.words[0];
    }
    writer.join();
    EXPECT_EQ(cell.load().words[0], 100'000U);
}

} // namespace
} // namespace tocca
