#include "Platform/AudioDevicesConformance.h"
#include "Platform/FileStoreConformance.h"
#include "Platform/FilesConformance.h"
#include "Platform/LoginItemConformance.h"
#include "Platform/Memory/MemoryFileStore.h"
#include "Platform/Memory/MemoryFiles.h"
#include "Platform/Memory/MemoryServices.h"

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

struct MemoryLoginMachine {
    LoginItem& loginItem() { return item; }

    memory::MemoryLoginItem item;
};

/// A machine on which everything has happened as soon as it was asked for.
class MemorySoundMachine {
public:
    AudioDevices& devices() { return devices_; }

    void plugIn(const std::string& name) { devices_.stopCapture(name); }

    void startCapture(const std::string& name) { devices_.startCapture(name); }

    void stopCapture(const std::string& name) { devices_.stopCapture(name); }

    void stopServer() { devices_.isServerRunning = false; }

    void startServer() { devices_.isServerRunning = true; }

    template <class Condition>
    bool eventually(Condition condition)
    {
        return condition();
    }

private:
    memory::MemoryAudioDevices devices_;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, AudioDevicesConformance, MemorySoundMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, LoginItemConformance, MemoryLoginMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FilesConformance, MemoryDiskMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FileStoreConformance, MemoryDiskMachine);

} // namespace tocca::platform
