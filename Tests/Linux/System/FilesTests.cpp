#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"

#include <gtest/gtest.h>

#include <string>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using instruments::TemporaryDirectory;

constexpr std::size_t kLimit = 32UL << 20U;

TEST(LinuxFiles, RefuseAtOnceWhateverIsNoRegularFile)
{
    const TemporaryDirectory directory;
    const auto& root = directory.path();
    TemporaryDirectory::makeFifo(root / "fifo");
    std::filesystem::create_symlink(root / "loop", root / "loop");
    std::filesystem::create_symlink(root / "fifo", root / "link to fifo");
    std::filesystem::create_symlink("/dev/zero", root / "endless");
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (root / "socket").string().copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);

    const LinuxFiles files;
    for (const auto& name : {"fifo", "loop", "link to fifo", "endless", "socket", "."}) {
        SCOPED_TRACE(name);
        const auto bytes = files.read(root / name, kLimit);
        ASSERT_FALSE(bytes);
        EXPECT_NE(bytes.error().describe().find(name), std::string::npos) << "which file is not said";
    }
    EXPECT_FALSE(files.read(root / std::string(5000, 'x'), kLimit)) << "a name that is too long";
    EXPECT_FALSE(files.exists(root / "loop"));
    EXPECT_FALSE(files.list(root / "loop"));
    ::close(listener);
}

TEST(LinuxFiles, RefuseAHugeFileWithoutReadingIt)
{
    const TemporaryDirectory directory;
    const auto path = directory.path() / "huge";
    TemporaryDirectory::write(path, "");
    std::filesystem::resize_file(path, 2ULL << 30U); // sparse
    EXPECT_FALSE(LinuxFiles().read(path, kLimit));
}

TEST(LinuxFiles, ReadFilesWhoseSizeIsNotWhatTheyClaim)
{
    const LinuxFiles files;
    // Claims to be empty, like a file that somebody is writing just now.
    const auto bytes = files.read("/proc/self/maps", kLimit);
    ASSERT_TRUE(bytes);
    EXPECT_GT(bytes.value()->size(), 100U);
    EXPECT_FALSE(files.read("/proc/self/maps", 100)) << "grew past the limit while it was read";
}

} // namespace

} // namespace tocca::platform::linux
