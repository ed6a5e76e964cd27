#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tocca::ui {

/// Whether the address is one of a file, well formed or not. Threads: any.
[[nodiscard]] bool isFileUrl(std::string_view url) noexcept;

/// The absolute path that a file's address names, if it is one of this computer's. Threads: any. Source: RFC 8089, RFC 3986 section 2.1.
[[nodiscard]] std::optional<std::filesystem::path> pathOfFileUrl(std::string_view url);

} // namespace tocca::ui
