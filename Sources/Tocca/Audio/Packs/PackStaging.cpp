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
#include <vector>

namespace tocca::audio {

namespace fs = std::filesystem;
using platform::FileKind;

namespace {

constexpr std::string_view kPrefix = ".tocca-import-";
constexpr std::string_view kReplacedPrefix = ".tocca-replaced-";
constexpr const char* kNew = "new";     // the pack that grows
constexpr const char* kWork = "work";   // what it grows from
constexpr const char* kReady = "ready"; // the pack that has grown, or the one it has changed places with
constexpr const char* kOld = "old";     // the pack that was in place, while nothing is
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

/// Gives what is in `folder / part` to the trash, or hides it beside the packs. Returns whether nothing of it is left there.
bool giveAway(const platform::Files& files, platform::FileStore& store, const fs::path& packs,
              const fs::path& folder, const char* part)
{
    const auto kept = store.status(folder / part);
    if (!kept) {
        return false;
    }
    if (kept.value().kind != FileKind::Directory) {
        return true;
    }
    const auto names = files.list(folder / part);
    if (!names) {
        return false;
    }
    bool isAllInTrash = true;
    for (const std::string& name : names.value()) {
        isAllInTrash = store.moveToTrash(folder / part / name, packs / name).hasValue() && isAllInTrash;
    }
    const std::string suffix = folder.filename().string().substr(kPrefix.size());
    return isAllInTrash ||
           store.move(folder / part, packs / (std::string(kReplacedPrefix) + suffix + part)).hasValue();
}

/// Puts back what `folder` keeps of packs whose place is empty, gives away what else is whole, then removes it; as long as
/// something could not be put back the folder stays. Returns whether anything was put back.
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
    }
    if (!giveAway(files, store, packs, folder, kOld) || !giveAway(files, store, packs, folder, kReady)) {
        return hasRestored;
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

fs::path PackStaging::workFolder() const
{
    return folder_ / kWork;
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
    } else if (auto replaced = replace(); !replaced) {
        // Nobody has asked for the new pack to be in the trash.
        static_cast<void>(store_.move(folder_ / kReady, folder_ / kDiscarded));
        return replaced;
    }
    // The new pack is in place; nothing that fails from now on may be told as a failed import.
    static_cast<void>(store_.syncDirectory(packs_));
    return std::monostate{};
}

Outcome PackStaging::replace()
{
    const fs::path ready = folder_ / kReady / packName_;
    if (auto made = store_.makeDirectories(folder_ / kReady); !made) {
        return made;
    }
    if (auto moved = store_.move(newPack(), ready); !moved) {
        return moved;
    }
    for (const fs::path& directory : {folder_ / kReady, folder_}) {
        if (auto synced = store_.syncDirectory(directory); !synced) {
            return synced;
        }
    }
    const auto exchanged = store_.exchange(ready, packs_ / packName_);
    if (!exchanged) {
        return exchanged.error();
    }
    return exchanged.value() ? Outcome(std::monostate{}) : replaceInTwoSteps();
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
    return store_.move(folder_ / kReady / packName_, place);
}

bool PackStaging::isReserved(std::string_view name)
{
    return name.starts_with(kPrefix) || name.starts_with(kReplacedPrefix);
}

bool PackStaging::isStaged(const fs::path& path, const fs::path& library)
{
    const fs::path staged = path.lexically_relative(library);
    return !staged.empty() && NamesInUse::shared().contains(staged.begin()->string());
}

void PackStaging::forgetReplaced(const platform::Files& files, platform::FileStore& store,
                                 const fs::path& packs)
{
    const auto names = files.list(packs);
    for (const std::string& name : names ? names.value() : std::vector<std::string>()) {
        if (name.starts_with(kReplacedPrefix)) {
            static_cast<void>(store.removeTree(packs / name));
        }
    }
}

bool PackStaging::settleAbandoned(const platform::Files& files, platform::FileStore& store,
                                  const fs::path& packs, std::span<const std::string> names)
{
    bool hasRestored = false;
    for (const std::string& name : names) {
        if (name.starts_with(kPrefix) && !NamesInUse::shared().contains(name)) {
            hasRestored = settle(files, store, packs, packs / name) || hasRestored;
        }
    }
    return hasRestored;
}

} // namespace tocca::audio
