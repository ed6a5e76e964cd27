#include "PackCheck/PackCheck.h"

#include <exception>
#include <iostream>
#include <string_view>

/// usage: tocca-pack-check FOLDER|ARCHIVE…
int main(int argc, char** argv)
{
    constexpr int kUsage = 2;
    if (argc < 2 || std::string_view(argv[1]) == "--help") {
        (argc < 2 ? std::cerr : std::cout) << "usage: tocca-pack-check FOLDER|ARCHIVE…\n";
        return argc < 2 ? kUsage : 0;
    }
    bool areAllGood = true;
    for (int i = 1; i < argc; ++i) {
        try {
            std::cout << (i > 1 ? "\n" : "") << argv[i] << '\n';
            const auto findings = tocca::packcheck::check(argv[i]);
            if (!findings) {
                std::cout << "Cannot be imported: " << findings.error().describe() << '\n';
                areAllGood = false;
                continue;
            }
            std::cout << findings.value().text;
            if (!findings.value().canBeHeard) {
                std::cout << "No key is heard: there is no standard press that can be played.\n";
            }
            areAllGood = areAllGood && findings.value().canBeHeard && findings.value().problems == 0;
        } catch (const std::exception& error) {
            std::cerr << "tocca-pack-check: " << error.what() << '\n';
            return kUsage;
        }
    }
    return areAllGood ? 0 : 1;
}
