#include "Audio/Packs/PackStaging.h"

#include "Platform/FileStore.h"
#include "Platform/Files.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <mutex>
#include <random>
#include <set>
#include <variant>

namespace tocca::audio {

namespace fs = std::filesystem;
using platform::FileKind;

namespace {

constexpr std::string_view kPrefix = ".tocca-import-";
constexpr const char* kNew = "new";             // the pack that grows, or the one it has changed places with
constexpr const char* kOld = "old";             // the pack that was in place, while nothing is
constexpr const char* kDiscarded = "discarded"; // what is never put back again

/// The names of the folders that this process is using.
class NamesInUse {
public:
    static NamesInUse& shared()
    {
        static auto& instance = *new NamesInUse;
        return instance;
    }

    std::string take()
    {
        const std::lock_guard lock(mutex_);
        for (;;) {
            auto name = std::string(kPrefix) + suffix();
            if (names_.insert(name).second) {
                return name;
            }
        }
    }

    void giveBack(const std::string& name)
    {
        const std::lock_guard lock(mutex_);
        names_.erase(name);
    }

    bool contains(const std::string& name)
    {
        const std::lock_guard lock(mutex_);
        return names_.contains(name);
    }

private:
    std::string suffix()
    {
        constexpr int kHexadecimal = 16;
        const auto number = std::uniform_int_distribution<std::uint64_t>()(entropy_);
        std::array<char, kHexadecimal> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), number, kHexadecimal).ptr;
        return {digits.begin(), end};
    }

    std::mutex mutex_;
    std::random_device entropy_;
    std::set<std::string> names_;
};

/// Puts back what `folder` keeps of packs whose place is empty, then removes it; as long as something could not be put back
/// the folder stays. Returns whether anything was put back.
bool settle(const platform::Files& files, platform::FileStore& store, const fs::path& packs,
            const fs::path& folder)
{
    bool hasRestored = false;
    const auto kept = store.status(folder / kOld);
    if (!kept) {
        return false;
    }
    if (kept.value().kind == FileKind::Directory) {
        const auto names = files.list(folder / kOld);
        if (!names) {
            return false;
        }
        for (const std::string& name : names.value()) {
            const auto place = store.status(packs / name);
            if (!place) {
                return hasRestored;
            }
            if (place.value().kind == FileKind::Missing) {
                if (!store.move(folder / kOld / name, packs / name)) {
                    return hasRestored;
                }
                hasRestored = true;
            }
        }
        static_cast<void>(store.syncDirectory(packs));
        // A removal may end halfway, and by the next time somebody may have taken the new pack away: half a pack must not
        // be put back then.
        if (!store.move(folder / kOld, folder / kDiscarded)) {
            return hasRestored;
        }
    }
    static_cast<void>(store.removeTree(folder));
    return hasRestored;
}

} // namespace

PackStaging::PackStaging(const platform::Files& files, platform::FileStore& store, const fs::path& packs,
                         const std::string& name)
    : files_(files)
    , store_(store)
    , packs_(packs)
    , packName_(name)
    , folder_(packs / NamesInUse::shared().take())
{}

PackStaging::~PackStaging()
{
    settle(files_, store_, packs_, folder_);
    NamesInUse::shared().giveBack(folder_.filename().string());
}

Outcome PackStaging::open()
{
    return store_.makeDirectories(folder_ / kNew);
}

fs::path PackStaging::newPack() const
{
    return folder_ / kNew / packName_;
}

Outcome PackStaging::commit()
{
    const fs::path place = packs_ / packName_;
    const auto there = store_.status(place);
    if (!there) {
        return there.error();
    }
    if (there.value().kind == FileKind::Missing) {
        if (auto moved = store_.move(newPack(), place); !moved) {
            return moved;
        }
    } else {
        const auto exchanged = store_.exchange(newPack(), place);
        if (!exchanged) {
            return exchanged.error();
        }
        if (!exchanged.value()) {
            if (auto replaced = replaceInTwoSteps(); !replaced) {
                return replaced;
            }
        }
    }
    // The new pack is in place; nothing that fails from now on may be told as a failed import.
    static_cast<void>(store_.syncDirectory(packs_));
    return std::monostate{};
}

Outcome PackStaging::replaceInTwoSteps()
{
    const fs::path place = packs_ / packName_;
    const fs::path old = folder_ / kOld;
    if (auto made = store_.makeDirectories(old); !made) {
        return made;
    }
    for (const fs::path& directory : {folder_, packs_}) {
        if (auto synced = store_.syncDirectory(directory); !synced) {
            return synced;
        }
    }
    if (auto moved = store_.move(place, old / packName_); !moved) {
        return moved;
    }
    return store_.move(newPack(), place);
}

bool PackStaging::isReserved(std::string_view name)
{
    return name.starts_with(kPrefix);
}

bool PackStaging::settleAbandoned(const platform::Files& files, platform::FileStore& store,
                                  const fs::path& packs, std::span<const std::string> names)
{
    bool hasRestored = false;
    for (const std::string& name : names) {
        if (isReserved(name) && !NamesInUse::shared().contains(name)) {
            hasRestored = settle(files, store, packs, packs / name) || hasRestored;
        }
    }
    return hasRestored;
}

} // namespace tocca::audio
