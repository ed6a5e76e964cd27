#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Support/Result.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tocca::audio {

/// Everything below a folder: the bytes of files, and of everything else what it is.
using FolderContents = std::map<std::string, std::string>;

inline FolderContents contentsOf(const platform::Files& files, const platform::FileStore& store,
                                 const std::filesystem::path& folder)
{
    constexpr std::size_t kLargest = std::size_t{16} * 1024 * 1024;
    FolderContents contents;
    const auto names = files.list(folder);
    for (const std::string& name : names ? names.value() : std::vector<std::string>{}) {
        const auto path = folder / name;
        switch (store.status(path).value().kind) {
        case platform::FileKind::File: {
            const auto bytes = files.read(path, kLargest);
            auto& text = contents[name];
            std::transform(bytes.value()->begin(), bytes.value()->end(), std::back_inserter(text),
                           [](std::byte byte) { return static_cast<char>(byte); });
            break;
        }
        case platform::FileKind::Directory:
            contents[name] = "(folder)";
            for (const auto& [below, text] : contentsOf(files, store, path)) {
                contents[(std::filesystem::path(name) / below).string()] = text;
            }
            break;
        case platform::FileKind::Link:
            contents[name] = "(link)";
            break;
        default:
            contents[name] = "(special)";
        }
    }
    return contents;
}

inline std::vector<std::string> idsOf(const Result<std::vector<SoundPackInfo>>& packs)
{
    std::vector<std::string> ids;
    for (const auto& pack : packs ? packs.value() : std::vector<SoundPackInfo>{}) {
        ids.push_back(pack.id);
    }
    return ids;
}

} // namespace tocca::audio
