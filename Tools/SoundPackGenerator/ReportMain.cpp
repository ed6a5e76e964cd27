#include "Acceptance/Checks.h"
#include "Acceptance/Report.h"
#include "Acceptance/TypingLoad.h"

#include <algorithm>
#include <iostream>
#include <span>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace tocca::soundpack;

    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const std::string_view argument = arguments.size() == 2 ? arguments[1] : "";
    if (argument.empty() || argument.starts_with('-')) {
        std::cerr << "usage: sound-pack-report <directory>   measure the sound packs in it\n";
        return 2;
    }
    const auto packs = readPacks(argument);
    if (!packs) {
        std::cerr << "sound-pack-report: " << packs.error().describe() << '\n';
        return 1;
    }
    const std::vector<Check> checks = allChecks(packs.value());
    printSlots(std::cout, packs.value());
    std::cout << '\n';
    printChecks(std::cout, checks);
    std::cout << '\n';
    printDistances(std::cout, packs.value());
    std::cout << '\n';
    printSmallSpeakers(std::cout, packs.value());
    std::cout << '\n';
    printTypingLoads(std::cout, packs.value());
    return std::cout.flush() && std::ranges::all_of(checks, &Check::holds) ? 0 : 1;
}
