#include "Platform/Linux/System/Files/ZipArchives.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include <archive.h>
#include <archive_entry.h>
#include <locale.h> // NOLINT(modernize-deprecated-headers): uselocale

namespace tocca::platform::linux {

namespace {

struct Closing {
    void operator()(::archive* opened) const { ::archive_read_free(opened); }
};

using ArchiveHandle = std::unique_ptr<::archive, Closing>;

Error archiveError(::archive* opened)
{
    const char* const reason = ::archive_error_string(opened);
    return {reason != nullptr ? reason : "the archive is damaged"};
}

ArchiveEntry::Kind kindOf(::archive_entry* entry)
{
    if (::archive_entry_hardlink(entry) != nullptr) {
        return ArchiveEntry::Kind::Link;
    }
    switch (::archive_entry_filetype(entry)) {
    case AE_IFREG:
        return ArchiveEntry::Kind::File;
    case AE_IFDIR:
        return ArchiveEntry::Kind::Directory;
    case AE_IFLNK:
        return ArchiveEntry::Kind::Link;
    default:
        return ArchiveEntry::Kind::Special;
    }
}

/// Lets the calling thread hold any name for a scope; in a locale without UTF-8 the library drops those that it cannot convert.
class Utf8Names {
public:
    Utf8Names()
        : locale_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr))
        , previous_(locale_ != nullptr ? ::uselocale(locale_) : nullptr)
    {}

    Utf8Names(const Utf8Names&) = delete;
    Utf8Names& operator=(const Utf8Names&) = delete;

    ~Utf8Names()
    {
        if (locale_ != nullptr) {
            ::uselocale(previous_);
            ::freelocale(locale_);
        }
    }

private:
    ::locale_t locale_;
    ::locale_t previous_;
};

/// The bytes of a name; where the locale cannot hold it, the library has it in UTF-8 alone.
std::string pathOf(::archive_entry* entry)
{
    const char* path = ::archive_entry_pathname_utf8(entry);
    if (path == nullptr) {
        path = ::archive_entry_pathname(entry);
    }
    return path != nullptr ? path : "";
}

class ZipArchive final : public Archive {
public:
    ZipArchive(SharedBytes bytes, ArchiveHandle opened)
        : bytes_(std::move(bytes))
        , opened_(std::move(opened))
    {}

    Result<std::optional<ArchiveEntry>> next() override
    {
        const Utf8Names names;
        ::archive_entry* entry = nullptr;
        const int result = ::archive_read_next_header(opened_.get(), &entry);
        if (result == ARCHIVE_EOF) {
            return std::optional<ArchiveEntry>();
        }
        // A warning is about a name that the locale cannot hold, or about attributes that nobody wants here.
        if (result < ARCHIVE_WARN) {
            return archiveError(opened_.get());
        }
        return std::optional(ArchiveEntry{.path = pathOf(entry),
                                          .kind = kindOf(entry),
                                          .isEncrypted = ::archive_entry_is_encrypted(entry) != 0});
    }

    Result<std::size_t> read(std::span<std::byte> into) override
    {
        const auto count = ::archive_read_data(opened_.get(), into.data(), into.size());
        if (count < 0) {
            return archiveError(opened_.get());
        }
        return static_cast<std::size_t>(count);
    }

private:
    const SharedBytes bytes_; // outlives the handle, which reads from it
    const ArchiveHandle opened_;
};

} // namespace

Result<std::unique_ptr<Archive>> ZipArchives::open(const SharedBytes& bytes) const
{
    const Utf8Names names;
    ArchiveHandle opened(::archive_read_new());
    if (opened == nullptr) {
        return Error{"there is not enough memory"};
    }
    if (::archive_read_support_format_zip_seekable(opened.get()) != ARCHIVE_OK ||
        ::archive_read_open_memory(opened.get(), bytes->data(), bytes->size()) != ARCHIVE_OK) {
        return archiveError(opened.get());
    }
    return std::unique_ptr<Archive>(std::make_unique<ZipArchive>(bytes, std::move(opened)));
}

} // namespace tocca::platform::linux
