#include "Instruments/TemporaryDirectory.h"
#include "Linux/System/PolledMachine.h"
#include "Platform/FileStoreConformance.h"
#include "Platform/FilesConformance.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/MainQueueAndTimersConformance.h"
#include "Platform/SerialQueueConformance.h"

namespace tocca::platform {

namespace {

class DiskMachine {
public:
    Files& files() { return files_; }

    FileStore& fileStore() { return fileStore_; }

    [[nodiscard]] std::filesystem::path root() const { return directory_.path(); }

    static void makeDirectory(const std::filesystem::path& path) { std::filesystem::create_directory(path); }

    static void write(const std::filesystem::path& path, const std::string& text)
    {
        instruments::TemporaryDirectory::write(path, text);
    }

    static void makeSpecial(const std::filesystem::path& path)
    {
        instruments::TemporaryDirectory::makeFifo(path);
    }

    static void makeLink(const std::filesystem::path& path, const std::filesystem::path& target)
    {
        std::filesystem::create_symlink(target, path);
    }

private:
    instruments::TemporaryDirectory directory_;
    linux::LinuxFiles files_;
    linux::LinuxFileStore fileStore_{linux::HomeTrash(directory_.path() / "trash")};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, SerialQueueConformance, linux::PolledMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, MainQueueAndTimersConformance, linux::PolledMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, FilesConformance, DiskMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, FileStoreConformance, DiskMachine);

} // namespace tocca::platform
