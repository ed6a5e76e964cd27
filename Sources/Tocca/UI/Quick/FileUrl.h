#pragma once

#include <QByteArray>
#include <QUrl>

#include <filesystem>
#include <optional>
#include <string>

/// The addresses of files, byte by byte: a path need not be text. Threads: any. Source: RFC 8089.
namespace tocca::ui::fileUrl {

/// The absolute path that an address names, if it is that of one of this computer's files.
[[nodiscard]] inline std::optional<std::filesystem::path> pathOf(const QUrl& url)
{
    const bool isHere = url.host().isEmpty() || url.host() == QLatin1String("localhost");
    const auto path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (!url.isLocalFile() || !isHere || !path.startsWith('/') || path.contains('\0')) {
        return std::nullopt;
    }
    return path.toStdString();
}

/// "file:///home/ann/My%20Packs": the address of an absolute path.
[[nodiscard]] inline std::string of(const std::filesystem::path& path)
{
    return "file://" + QByteArray::fromStdString(path.string()).toPercentEncoding("/").toStdString();
}

} // namespace tocca::ui::fileUrl
