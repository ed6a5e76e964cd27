#include "Instruments/ZipFile.h"

#include <string_view>

namespace tocca::instruments {

namespace {

std::uint32_t checksum(std::string_view bytes)
{
    constexpr std::uint32_t kPolynomial = 0xEDB88320U;
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char c : bytes) {
        sum ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? kPolynomial : 0U);
        }
    }
    return ~sum;
}

template <class Unsigned>
void append(std::string& to, Unsigned value)
{
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
        to += static_cast<char>((std::uint32_t{value} >> (8 * i)) & 0xFFU);
    }
}

/// What the header before a file and the list at the end have in common.
void appendFacts(std::string& to, const ZipEntry& entry)
{
    const auto size = static_cast<std::uint32_t>(entry.bytes.size());
    append(to, std::uint16_t{20});                                                   // version needed
    append(to, static_cast<std::uint16_t>((entry.isEncrypted ? 1U : 0U) | 0x0800U)); // names in UTF-8
    append(to, std::uint16_t{0});                                                    // stored
    append(to, std::uint32_t{0x58210000});                                           // 2024-01-01
    append(to, entry.hasWrongChecksum ? ~checksum(entry.bytes) : checksum(entry.bytes));
    append(to, size);
    append(to, size);
    append(to, static_cast<std::uint16_t>(entry.path.size()));
    append(to, std::uint16_t{0}); // extra field
}

} // namespace

std::string zipFile(const std::vector<ZipEntry>& entries)
{
    constexpr std::uint32_t kRegularFile = 0100644;
    constexpr std::uint32_t kLink = 0120777;
    std::string file;
    std::string list;
    for (const ZipEntry& entry : entries) {
        append(list, std::uint32_t{0x02014B50});
        append(list, std::uint16_t{0x0314}); // made on Unix
        appendFacts(list, entry);
        append(list, std::uint16_t{0}); // comment
        append(list, std::uint16_t{0}); // disk
        append(list, std::uint16_t{0}); // internal attributes
        append(list, (entry.isLink ? kLink : kRegularFile) << 16U);
        append(list, static_cast<std::uint32_t>(file.size()));
        list += entry.path;

        append(file, std::uint32_t{0x04034B50});
        appendFacts(file, entry);
        file += entry.path + entry.bytes;
    }
    const auto start = static_cast<std::uint32_t>(file.size());
    file += list;
    append(file, std::uint32_t{0x06054B50});
    append(file, std::uint16_t{0});
    append(file, std::uint16_t{0});
    append(file, static_cast<std::uint16_t>(entries.size()));
    append(file, static_cast<std::uint16_t>(entries.size()));
    append(file, static_cast<std::uint32_t>(list.size()));
    append(file, start);
    append(file, std::uint16_t{0});
    return file;
}

} // namespace tocca::instruments
