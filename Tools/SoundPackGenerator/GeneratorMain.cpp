#include "Model/Packs.h"
#include "Output/PackWriter.h"
#include "Output/SelectStrokes.h"

#include <iostream>
#include <span>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace tocca::soundpack;

    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const std::string_view argument = arguments.size() == 2 ? arguments[1] : "";
    if (argument == "--select") {
        printSelections(std::cout, packs());
        return std::cout.flush() ? 0 : 1;
    }
    if (argument.empty() || argument.starts_with('-')) {
        std::cerr
            << "usage: sound-pack-generator <output directory>   render the built-in sound packs\n"
               "       sound-pack-generator --select             print the table for Model/Selection.cpp\n";
        return 2;
    }
    if (const auto written = writePacks(packs(), argument); !written) {
        std::cerr << "sound-pack-generator: " << written.error().describe() << '\n';
        return 1;
    }
    return 0;
}
