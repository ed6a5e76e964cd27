#include "Audio/PackFolder.h"
#include "Audio/Packs/PackImporter.h"
#include "Audio/Packs/PackLibrary.h"
#include "Audio/Packs/PackStaging.h"
#include "Instruments/TemporaryDirectory.h"
#include "Linux/System/ChildProcess.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tocca::audio {
namespace {

namespace fs = std::filesystem;
using instruments::TemporaryDirectory;
using platform::linux::ChildProcess;
using testing::ElementsAre;
using testing::HasSubstr;

/// A folder of packs with one called "Alps", and another "Alps" to be imported.
struct ImportOnDisk : testing::Test {
    ImportOnDisk() { fillOldPack(); }

    ~ImportOnDisk() override { static_cast<void>(platform::linux::LinuxFileStore().removeTree(root)); }

    void fillOldPack() const
    {
        fs::create_directories(packs / "Alps/sub");
        TemporaryDirectory::write(packs / "Alps/old.wav", "old");
        TemporaryDirectory::write(packs / "Alps/sub/deep.wav", "old deep");
    }

    void fillSource(int fileCount, std::size_t fileSize) const
    {
        for (int i = 0; i < fileCount; ++i) {
            const auto folder = source / ("folder " + std::to_string(i % 3));
            fs::create_directories(folder);
            TemporaryDirectory::write(folder / (std::to_string(i) + ".wav"),
                                      std::string(fileSize, static_cast<char>('a' + i % 26)));
        }
    }

    [[nodiscard]] std::string import(const fs::path& from)
    {
        const auto imported = PackImporter(files, store).import(from, packs);
        return imported ? "imported " + imported.value() : imported.error().describe();
    }

    /// The same by a user who is bound by permissions.
    [[nodiscard]] std::string importAsOrdinaryUser(const fs::path& from)
    {
        if (::getuid() == 0) {
            for (const auto& entry : fs::recursive_directory_iterator(root)) {
                EXPECT_EQ(::lchown(entry.path().c_str(), ChildProcess::kNobody, ChildProcess::kNobody), 0);
            }
            EXPECT_EQ(::lchown(root.c_str(), ChildProcess::kNobody, ChildProcess::kNobody), 0);
        }
        ChildProcess child([&] { return import(from); }, ChildProcess::Rights::Ordinary);
        return child.finish().value_or("killed");
    }

    [[nodiscard]] FolderContents contents(const fs::path& folder) const
    {
        return contentsOf(files, store, folder);
    }

    /// Expects one pack, the old one or the new one, whole, and nothing else that is seen or stays.
    void expectOneWholePack()
    {
        EXPECT_THAT(idsOf(PackLibrary(files, store).packs(packs)), ElementsAre("custom_Alps"));
        EXPECT_THAT(files.list(packs).value(), ElementsAre("Alps"));
        EXPECT_TRUE(isOldPack() || contents(packs / "Alps") == contents(source));
    }

    [[nodiscard]] bool isOldPack() const
    {
        return contents(packs / "Alps") ==
               FolderContents{{"old.wav", "old"}, {"sub", "(folder)"}, {"sub/deep.wav", "old deep"}};
    }

    TemporaryDirectory directory;
    const fs::path root = directory.path();
    const fs::path packs = root / "packs";
    const fs::path source = root / "downloads/Alps";
    platform::linux::LinuxFiles files;
    platform::linux::LinuxFileStore store{platform::linux::HomeTrash(root / "trash")};
};

/// A small disk of its own at a folder, for as long as a test needs it.
class SmallDisk {
public:
    explicit SmallDisk(fs::path folder)
        : folder_(std::move(folder))
        , isMounted_(::mount("tmpfs", folder_.c_str(), "tmpfs", 0, "size=256k") == 0)
    {}

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    ~SmallDisk()
    {
        if (isMounted_) {
            ::umount2(folder_.c_str(), MNT_DETACH);
        }
    }

    [[nodiscard]] bool isMounted() const { return isMounted_; }

private:
    fs::path folder_;
    bool isMounted_;
};

TEST_F(ImportOnDisk, LeavesAWholePackWhenItIsKilledInTheMiddleOfAnything)
{
    constexpr int kFiles = 40;
    constexpr std::size_t kSize = 200'000;
    constexpr int kAttempts = 30;
    fillSource(kFiles, kSize);
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        SCOPED_TRACE(attempt);
        ASSERT_TRUE(store.removeTree(packs / "Alps"));
        fillOldPack();
        ChildProcess child([&] { return import(source); });
        // Whatever moment this hits, what is expected holds.
        std::this_thread::sleep_for(std::chrono::milliseconds(attempt * 2));
        child.kill();
        const auto said = child.finish();
        expectOneWholePack();
        ASSERT_TRUE(!said || *said == "imported Alps") << *said;
    }
}

TEST_F(ImportOnDisk, KeepsTheOldPackWhenTheDiskIsFull)
{
    const SmallDisk disk(packs);
    if (!disk.isMounted()) {
        GTEST_SKIP() << "only the superuser may mount a disk to be filled";
    }
    fillOldPack();
    fillSource(20, 50'000);
    EXPECT_THAT(import(source), HasSubstr("No space left on device"));
    EXPECT_TRUE(isOldPack());
    expectOneWholePack();

    TemporaryDirectory::write(root / "large", std::string(1'000'000, 'x'));
    EXPECT_FALSE(store.copyEntry(root / "large", packs / "large"));
    EXPECT_FALSE(files.exists(packs / "large")) << "half a file was left";

    fs::remove_all(source);
    fillSource(2, 50'000);
    EXPECT_EQ(import(source), "imported Alps") << "what the failed import took is free again";
    PackStaging::forgetReplaced(files, store, packs); // the trash is on another disk
    expectOneWholePack();
}

TEST_F(ImportOnDisk, CopiesLinksAsLinksAndLeavesSpecialThingsOut)
{
    fillSource(1, 10);
    TemporaryDirectory::write(root / "outside", "secret");
    fs::create_symlink(root / "outside", source / "out.wav");
    fs::create_symlink("nowhere", source / "dangling.wav");
    fs::create_symlink("..", source / "loop");
    TemporaryDirectory::makeFifo(source / "fifo.wav");
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (source / "socket").string().copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    ::close(listener);

    EXPECT_EQ(import(source), "imported Alps");
    EXPECT_EQ(contents(packs / "Alps"), (FolderContents{{"dangling.wav", "(link)"},
                                                        {"folder 0", "(folder)"},
                                                        {"folder 0/0.wav", std::string(10, 'a')},
                                                        {"loop", "(link)"},
                                                        {"out.wav", "(link)"}}));
    EXPECT_EQ(fs::read_symlink(packs / "Alps/dangling.wav"), "nowhere");
    EXPECT_THAT(import(source / "fifo.wav"), HasSubstr("neither a folder nor a file"));
}

TEST_F(ImportOnDisk, TellsWhyItMayNotAndKeepsTheOldPack)
{
    fillSource(1, 10);
    TemporaryDirectory::write(source / "secret.wav", "x");
    fs::permissions(source / "secret.wav", fs::perms::none);
    EXPECT_EQ(importAsOrdinaryUser(source), "secret.wav: Permission denied");
    expectOneWholePack();

    fs::remove(source / "secret.wav");
    fs::permissions(source / "folder 0", fs::perms::none);
    EXPECT_EQ(importAsOrdinaryUser(source), "folder 0: Permission denied");
    expectOneWholePack();

    fs::permissions(source / "folder 0", fs::perms::owner_all);
    fs::permissions(packs, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_THAT(importAsOrdinaryUser(source), HasSubstr(": Permission denied"));
    fs::permissions(packs, fs::perms::owner_all);
    EXPECT_TRUE(isOldPack());
    expectOneWholePack();
}

TEST_F(ImportOnDisk, ReplacesAndCopiesWhatIsProtectedAgainstWriting)
{
    constexpr auto kReadOnly = fs::perms::owner_read | fs::perms::owner_exec;
    fillSource(1, 10);
    TemporaryDirectory::write(source / "read-only.wav", "x");
    fs::permissions(source / "read-only.wav", fs::perms::owner_read);
    fs::permissions(source / "folder 0", kReadOnly);
    fs::permissions(packs / "Alps/sub", kReadOnly);
    EXPECT_EQ(importAsOrdinaryUser(source), "imported Alps");
    EXPECT_THAT(files.list(packs).value(), ElementsAre("Alps")) << "the old pack was left behind";
    expectOneWholePack();
    EXPECT_FALSE(isOldPack());

    EXPECT_EQ(importAsOrdinaryUser(source), "imported Alps") << "the copy must not be as protected";
    expectOneWholePack();
}

} // namespace
} // namespace tocca::audio
