#include "Platform/FileStoreConformance.h"
#include "Platform/FilesConformance.h"
#include "Platform/Memory/MemoryFileStore.h"
#include "Platform/Memory/MemoryFiles.h"

namespace tocca::platform {

namespace {

class MemoryDiskMachine {
public:
    MemoryDiskMachine() { files_.makeDirectory(root()); }

    Files& files() { return files_; }

    FileStore& fileStore() { return store_; }

    [[nodiscard]] static std::filesystem::path root() { return "/home/user"; }

    void makeDirectory(const std::filesystem::path& path) { files_.makeDirectory(path); }

    void write(const std::filesystem::path& path, const std::string& text) { files_.write(path, text); }

    void makeSpecial(const std::filesystem::path& path) { files_.makeSpecial(path); }

    void makeLink(const std::filesystem::path& path, const std::filesystem::path& target)
    {
        files_.makeLink(path, target);
    }

private:
    memory::MemoryDisk disk_;
    memory::MemoryFiles files_{disk_};
    memory::MemoryFileStore store_{disk_};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FilesConformance, MemoryDiskMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FileStoreConformance, MemoryDiskMachine);

} // namespace tocca::platform
