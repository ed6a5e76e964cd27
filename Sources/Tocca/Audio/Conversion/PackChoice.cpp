#include "Audio/Conversion/PackChoice.h"

#include "Audio/Conversion/Formats/Formats.h"

#include <iterator>
#include <utility>
#include <vector>

namespace tocca::audio {

namespace {

constexpr int kDeepestPack = 4; // folders in folders, as archives come to be packed

std::optional<PackChoice> packIn(const SourceTree& tree)
{
    if (auto plan = formats::recognise(tree)) {
        return PackChoice{.tree = tree, .plan = std::move(plan)};
    }
    return formats::isPlainPack(tree) ? std::optional(PackChoice{.tree = tree, .plan = std::nullopt})
                                      : std::nullopt;
}

std::vector<PackChoice> packsBelow(const SourceTree& tree, int depth)
{
    std::vector<PackChoice> found;
    if (depth > kDeepestPack) {
        return found;
    }
    for (const std::string& folder : tree.topFolders()) {
        const SourceTree below = tree.below(folder);
        if (auto pack = packIn(below)) {
            found.push_back(std::move(*pack));
            continue;
        }
        auto deeper = packsBelow(below, depth + 1);
        std::move(deeper.begin(), deeper.end(), std::back_inserter(found));
    }
    return found;
}

} // namespace

Result<PackChoice> choosePack(const SourceTree& tree, const std::string& name)
{
    if (auto pack = packIn(tree)) {
        return std::move(*pack);
    }
    auto packs = packsBelow(tree, 1);
    if (packs.size() > 1) {
        return Error{"“" + name + "” holds " + std::to_string(packs.size()) +
                     " sound packs; import one of them"};
    }
    if (packs.size() == 1) {
        return std::move(packs.front());
    }
    return PackChoice{.tree = tree, .plan = std::nullopt, .isKnown = false};
}

} // namespace tocca::audio
