#include "Platform/Linux/Freedesktop/Applications/LinuxLoginItem.h"

#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"
#include "Platform/LoginItemConformance.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include <unistd.h>

namespace tocca::platform {

namespace {

using instruments::TemporaryDirectory;

namespace fs = std::filesystem;

/// A user's and the system's autostart directories, and a program in a directory that is hard to quote.
class LoginItemMachine {
public:
    LoginItemMachine()
    {
        fs::create_directories(program.parent_path());
        instruments::TemporaryDirectory::write(program, "");
        fs::permissions(program, fs::perms::owner_all);
    }

    LoginItem& loginItem() { return item; }

    instruments::TemporaryDirectory directory;
    fs::path program = directory.path() / "a $dir \"100%\"" / "tocca";
    fs::path user = directory.path() / "config" / "autostart";
    fs::path system = directory.path() / "etc" / "autostart";
    fs::path entry = user / "org.tocca.Tocca.desktop";
    linux::LinuxLoginItem item{{.program = program, .directories = {user, system}}};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, LoginItemConformance, LoginItemMachine);

namespace linux {

namespace {

struct LoginItemTest : ::testing::Test, LoginItemMachine {
    static std::string read(const fs::path& path)
    {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }

    void writeEntry(const fs::path& place, const std::string& lines) const
    {
        fs::create_directories(place);
        TemporaryDirectory::write(place / entry.filename(), "[Desktop Entry]\nType=Application\n" + lines);
    }
};

TEST_F(LoginItemTest, WritesAnEntryThatStartsThisProgram)
{
    ASSERT_TRUE(item.registerItem());
    const DesktopEntry written(read(entry));
    EXPECT_EQ(written.text("Type"), "Application");
    EXPECT_EQ(written.text("TryExec"), program.native());
    EXPECT_EQ(written.text("Exec"), "\"" + directory.path().native() + "/a \\$dir \\\"100%%\\\"/tocca\"");
    EXPECT_EQ(std::distance(fs::directory_iterator(user), {}), 1) << "nothing is left of the way there";
}

TEST_F(LoginItemTest, BelievesTheFileWhoeverChangedIt)
{
    const struct {
        const char* name;
        std::string lines;
        LoginItemStatus status;
    } kRows[] = {
        {"plain", "Exec=tocca\n", LoginItemStatus::Enabled},
        {"hidden", "Hidden=true\n", LoginItemStatus::NotRegistered},
        {"switched off in GNOME", "X-GNOME-Autostart-enabled=false\n", LoginItemStatus::RequiresApproval},
        {"switched off in MATE", "X-MATE-Autostart-enabled=false\n", LoginItemStatus::RequiresApproval},
        {"program there", "TryExec=" + escapedText(program.native()) + "\n", LoginItemStatus::Enabled},
        {"program gone", "TryExec=/nowhere/tocca\n", LoginItemStatus::NotFound},
    };

    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        writeEntry(user, row.lines);
        EXPECT_EQ(item.status(), row.status);
        ASSERT_TRUE(item.registerItem());
        EXPECT_EQ(item.status(), LoginItemStatus::Enabled) << "whatever was there before";
    }
    fs::remove(entry);
    EXPECT_EQ(item.status(), LoginItemStatus::NotRegistered);
}

TEST_F(LoginItemTest, HidesTheSystemsEntryInsteadOfLettingItBack)
{
    writeEntry(system, "Exec=tocca\n");
    EXPECT_EQ(item.status(), LoginItemStatus::Enabled);
    ASSERT_TRUE(item.unregisterItem());
    EXPECT_EQ(item.status(), LoginItemStatus::NotRegistered);
    EXPECT_EQ(DesktopEntry(read(entry)).text("Hidden"), "true");
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::Enabled);
    EXPECT_EQ(read(system / entry.filename()), "[Desktop Entry]\nType=Application\nExec=tocca\n");
}

TEST_F(LoginItemTest, TellsTheSystemsReasonAndLeavesEverythingAsItWas)
{
    TemporaryDirectory::write(directory.path() / "config", "a file in the way");
    const Outcome outcome = item.registerItem();
    ASSERT_FALSE(outcome);
    EXPECT_NE(outcome.error().describe().find("Not a directory"), std::string::npos)
        << outcome.error().describe();
    EXPECT_EQ(item.status(), LoginItemStatus::NotRegistered);

    fs::remove(directory.path() / "config");
    fs::create_directories(entry / "a directory in the way");
    const Outcome replacement = item.registerItem();
    ASSERT_FALSE(replacement);
    EXPECT_NE(replacement.error().describe(), "");
    EXPECT_TRUE(fs::exists(entry / "a directory in the way"));
    EXPECT_FALSE(item.unregisterItem());
    const LinuxLoginItem homeless({.program = program, .directories = {}});
    EXPECT_EQ(homeless.status(), LoginItemStatus::NotRegistered);
}

TEST_F(LoginItemTest, ReplacesALinkWithoutTouchingWhatItLeadsTo)
{
    fs::create_directories(user);
    const auto elsewhere = directory.path() / "elsewhere";
    TemporaryDirectory::write(elsewhere, "somebody's own");
    fs::create_symlink(elsewhere, entry);
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::Enabled);
    EXPECT_EQ(read(elsewhere), "somebody's own");
}

} // namespace

} // namespace linux

} // namespace tocca::platform
