#pragma once

#include "Platform/FileStore.h"
#include "Support/Result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tocca::platform {
class Files;
}

namespace tocca::audio {

/// Everything below a folder that somebody wants to have as a sound pack.
///
/// Threads: any, one at a time.
/// Lifetime: the files outlive it.
class SourceTree {
public:
    static constexpr std::uint64_t kMostBytes = std::uint64_t{512} << 20U;
    static constexpr std::size_t kMostEntries = 20000;
    static constexpr int kDeepestFolder = 64; ///< only the topmost is ever played; endless ones exist

    struct Entry {
        std::string path; ///< below the root, with "/" between folders
        platform::FileKind kind = platform::FileKind::File;
    };

    /// Looks through `root` without following links; leaves out what file managers leave behind. Asks `isCancelled` at every folder.
    /// Errors: why the tree cannot be read or is none that is taken, in one line for people.
    [[nodiscard]] static Result<SourceTree> read(const platform::Files& files,
                                                 const platform::FileStore& store,
                                                 const std::filesystem::path& root,
                                                 const std::function<bool()>& isCancelled);

    /// The part of this tree in one of its folders.
    [[nodiscard]] SourceTree below(const std::string& folder) const;

    [[nodiscard]] const std::filesystem::path& root() const noexcept { return root_; }

    /// Folders before what is in them, otherwise sorted by path.
    [[nodiscard]] const std::vector<Entry>& entries() const noexcept { return entries_; }

    /// The regular files among them, by path.
    [[nodiscard]] std::vector<std::string> files() const;

    /// The folders directly in the root.
    [[nodiscard]] std::vector<std::string> topFolders() const;

    /// The file that a foreign description means by `name`: exactly that one, or else the one that differs in case or in the
    /// kind of slash. Nothing when there is none below the root, whatever the name tries.
    [[nodiscard]] std::optional<std::string> find(std::string_view name) const;

    /// The text of a file of at most `limit` bytes.
    [[nodiscard]] std::optional<std::string> text(const std::string& path, std::size_t limit) const;

    [[nodiscard]] const platform::Files& reader() const noexcept { return *reader_; }

    /// Whether `name` is one of the files that file managers leave behind: a resource fork, a folder's settings.
    [[nodiscard]] static bool isDebris(std::string_view name);

private:
    SourceTree(const platform::Files& files, std::filesystem::path root)
        : reader_(&files)
        , root_(std::move(root))
    {}

    void index();

    const platform::Files* reader_;
    std::filesystem::path root_;
    std::vector<Entry> entries_;
    std::map<std::string, std::string, std::less<>> byPath_;      // files
    std::map<std::string, std::string, std::less<>> byLowerCase_; // the same, for those who are not exact
};

} // namespace tocca::audio
