#pragma once

#include "Platform/FileStore.h"
#include "Platform/Files.h"

#include <cstddef>
#include <functional>
#include <span>
#include <utility>

namespace tocca::platform {

/// Says that the Nth call fails.
class FailAfter {
public:
    /// What becomes of the calls behind it: `Nothing` works any more, as after a crash, or `Everything` does.
    enum class ThenWorks { Everything, Nothing };

    FailAfter(int calls, ThenWorks then) noexcept
        : calls_(calls)
        , then_(then)
    {}

    [[nodiscard]] bool operator()() noexcept
    {
        ++count_;
        return count_ == calls_ || (count_ > calls_ && then_ == ThenWorks::Nothing);
    }

    [[nodiscard]] bool hasFailed() const noexcept { return count_ >= calls_; }

private:
    int calls_;
    ThenWorks then_;
    int count_ = 0;
};

/// Asked before every call: whether it fails.
using Fault = std::function<bool()>;

/// Files that cannot always be read.
class FaultyFiles : public Files {
public:
    FaultyFiles(const Files& real, Fault fails)
        : real_(real)
        , fails_(std::move(fails))
    {}

    [[nodiscard]] bool exists(const std::filesystem::path& path) const override
    {
        return !fails_() && real_.exists(path);
    }

    [[nodiscard]] Result<std::vector<std::string>> list(const std::filesystem::path& directory) const override
    {
        return fails_() ? Error{"the disk has failed"} : real_.list(directory);
    }

    [[nodiscard]] Result<SharedBytes> read(const std::filesystem::path& path,
                                           std::size_t limit) const override
    {
        return fails_() ? Error{"the disk has failed"} : real_.read(path, limit);
    }

private:
    const Files& real_;
    Fault fails_;
};

/// Files that cannot always be changed; a removal that fails has removed something already.
class FaultyFileStore : public FileStore {
public:
    FaultyFileStore(const Files& files, FileStore& real, Fault fails)
        : files_(files)
        , real_(real)
        , fails_(std::move(fails))
    {}

    [[nodiscard]] Result<FileStatus> status(const std::filesystem::path& path) const override
    {
        return fails_() ? failure() : real_.status(path);
    }

    [[nodiscard]] Result<std::filesystem::path> resolve(const std::filesystem::path& path) const override
    {
        return fails_() ? failure() : real_.resolve(path);
    }

    Outcome makeDirectories(const std::filesystem::path& path) override
    {
        return fails_() ? failure() : real_.makeDirectories(path);
    }

    Outcome copyEntry(const std::filesystem::path& from, const std::filesystem::path& to) override
    {
        return fails_() ? failure() : real_.copyEntry(from, to);
    }

    Outcome writeFile(const std::filesystem::path& to, std::span<const std::byte> bytes) override
    {
        return fails_() ? failure() : real_.writeFile(to, bytes);
    }

    Outcome moveToTrash(const std::filesystem::path& path, const std::filesystem::path& original) override
    {
        return fails_() ? failure() : real_.moveToTrash(path, original);
    }

    Outcome move(const std::filesystem::path& from, const std::filesystem::path& to) override
    {
        return fails_() ? failure() : real_.move(from, to);
    }

    Result<bool> exchange(const std::filesystem::path& first, const std::filesystem::path& second) override
    {
        if (fails_()) {
            return failure();
        }
        return canExchange ? real_.exchange(first, second) : Result<bool>(false);
    }

    Outcome removeTree(const std::filesystem::path& path) override
    {
        if (!fails_()) {
            return real_.removeTree(path);
        }
        removeLastLeaf(path);
        return failure();
    }

    Outcome syncDirectory(const std::filesystem::path& directory) override
    {
        return fails_() ? failure() : real_.syncDirectory(directory);
    }

    bool canExchange = true;

private:
    static Error failure() { return {"the disk has failed"}; }

    void removeLastLeaf(const std::filesystem::path& path)
    {
        const auto status = real_.status(path);
        const bool isDirectory = status && status.value().kind == FileKind::Directory;
        const auto names = isDirectory ? files_.list(path) : std::vector<std::string>{};
        if (names && !names.value().empty()) {
            removeLastLeaf(path / names.value().back());
        } else {
            static_cast<void>(real_.removeTree(path));
        }
    }

    const Files& files_;
    FileStore& real_;
    Fault fails_;
};

} // namespace tocca::platform
