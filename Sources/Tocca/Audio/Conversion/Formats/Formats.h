#pragma once

#include "Audio/Conversion/ConversionPlan.h"
#include "Audio/Conversion/SourceTree.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// The layouts of foreign packs. Each function looks for one and says what it has found, or nothing.
namespace tocca::audio::formats {

/// A larger description is not read. Units: bytes.
inline constexpr std::size_t kLargestDescription = std::size_t{4} << 20U;

/// `config.json` with times or a file for each scan code.
[[nodiscard]] std::optional<ConversionPlan> keyDefinitions(const SourceTree& tree);

/// `config.json` with pairs of times for each named key.
[[nodiscard]] std::optional<ConversionPlan> timedDefinitions(const SourceTree& tree);

/// A description with the files of each named key, down and up.
[[nodiscard]] std::optional<ConversionPlan> soundMap(const SourceTree& tree);

/// Folders for presses and releases, or for each kind of key.
[[nodiscard]] std::optional<ConversionPlan> roleFolders(const SourceTree& tree);

/// Files called by the codes of keys, in hexadecimal.
[[nodiscard]] std::optional<ConversionPlan> numberedFiles(const SourceTree& tree);

/// The first of these that is found. A folder whose files are called as in a plain pack is none of them.
[[nodiscard]] std::optional<ConversionPlan> recognise(const SourceTree& tree);

/// Whether the folder's own files can be played as they are.
[[nodiscard]] bool isPlainPack(const SourceTree& tree);

/// Whether a file's name ends as those of sounds that are played, whatever the case.
[[nodiscard]] bool isSoundFile(std::string_view path);

/// Adds takes of the file that a description calls `name`, or of each one when it has a range in it, like "row{0-4}.wav";
/// remarks on what is not there.
void addFiles(ConversionPlan& plan, const SourceTree& tree, const std::string& name, const Take& take);

} // namespace tocca::audio::formats
