#include "Showroom.h"

#include "UI/Studio/Showroom/ShowroomCatalogue.h"

#include <benchmark/benchmark.h>

// What a key typed into the showroom's search costs with a large library of packs.
namespace tocca::ui {
namespace {

/// From the changed text to the page's items.
void searchAmong10000Packs(benchmark::State& state)
{
    ShowroomCatalogue catalogue;
    catalogue.setCustomPacks(benchmarks::packs(benchmarks::kPacks));
    std::size_t typed = 0;
    for (auto _ : state) {
        catalogue.setSearchText(benchmarks::searchAfter(++typed));
        benchmark::DoNotOptimize(catalogue.paginatedShowroomItems().data());
    }
}

BENCHMARK(searchAmong10000Packs)->Unit(benchmark::kMillisecond);

/// Making the names ready for searching, once for every change of the library.
void take10000PacksIn(benchmark::State& state)
{
    const auto packs = benchmarks::packs(benchmarks::kPacks);
    ShowroomCatalogue catalogue;
    for (auto _ : state) {
        catalogue.setCustomPacks(packs);
        benchmark::DoNotOptimize(catalogue.allShowroomItems().data());
    }
}

BENCHMARK(take10000PacksIn)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tocca::ui
