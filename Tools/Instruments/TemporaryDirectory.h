#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp
#include <sys/stat.h>

namespace tocca::instruments {

/// A temporary directory that is deleted with the object.
class TemporaryDirectory {
public:
    TemporaryDirectory()
    {
        std::string name = (std::filesystem::temp_directory_path() / "tocca.XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("mkdtemp");
        }
        path_ = name;
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    ~TemporaryDirectory()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    static void write(const std::filesystem::path& path, const std::string& text)
    {
        std::ofstream(path, std::ios::binary) << text;
    }

    static void makeFifo(const std::filesystem::path& path)
    {
        if (::mkfifo(path.c_str(), S_IRUSR | S_IWUSR) != 0) {
            throw std::runtime_error("mkfifo");
        }
    }

private:
    std::filesystem::path path_;
};

} // namespace tocca::instruments
