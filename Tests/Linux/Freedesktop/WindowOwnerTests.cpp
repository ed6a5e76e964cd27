#include "Platform/Linux/Freedesktop/Applications/WindowOwner.h"

#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/ProcessNames.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using instruments::TemporaryDirectory;

class WindowOwnerTest : public ::testing::Test {
protected:
    void install(const std::string& path, const std::string& name, const std::string& more = "")
    {
        const auto file = own_.path() / path;
        std::filesystem::create_directories(file.parent_path());
        TemporaryDirectory::write(file, "[Desktop Entry]\nName=" + name + "\n" + more + "\n");
    }

    /// "identifier (name)", and what it is for.
    std::string known(const WindowOwner& owner)
    {
        const auto application = applicationOf(owner, entries_);
        const auto kind = application.kind;
        return application.bundleIdentifier.value_or("?") + " (" + application.localizedName.value_or("?") +
               ')' +
               (kind == ApplicationKind::call            ? " for calls"
                : kind == ApplicationKind::passwordStore ? " for passwords"
                                                         : "");
    }

    TemporaryDirectory own_;
    TemporaryDirectory system_;
    DesktopEntries entries_{{own_.path(), system_.path(), "/nowhere"}};
};

TEST_F(WindowOwnerTest, IsFoundByWhateverTellsMost)
{
    install("org.keepassxc.KeePassXC.desktop", "KeePassXC");
    install("org.gnome.seahorse.Application.desktop", "Passwords and Keys");
    install("chrome-abc-Default.desktop", "Video Calls", "StartupWMClass=crx_abc");
    install("google-chrome.desktop", "Chrome");
    install("kde4/dolphin.desktop", "Dolphin");
    install("us.zoom.Zoom.desktop", "Zoom");

    const struct {
        const char* name;
        WindowOwner owner;
        const char* known;
    } kRows[] = {
        {"end of an entry's id",
         {{}, {"keepassxc", "KeePassXC"}, ""},
         "org.keepassxc.KeePassXC (KeePassXC) for passwords"},
        {"application id",
         {{"", "", "org.gnome.seahorse.Application"}, {"seahorse", "Seahorse"}, ""},
         "org.gnome.seahorse.Application (Passwords and Keys) for passwords"},
        {"class that the entry names",
         {{}, {"crx_abc", "Google-chrome"}, "chrome"},
         "chrome-abc-Default (Video Calls)"},
        {"id with its folder", {{"kde4-dolphin"}, {"dolphin", "Dolphin"}, ""}, "kde4-dolphin (Dolphin)"},
        {"sandbox before class",
         {{"us.zoom.Zoom"}, {"editor", "Editor"}, ""},
         "us.zoom.Zoom (Zoom) for calls"},
        {"Snap", {{"discord_discord"}, {"discord", "discord"}, ""}, "discord_discord (discord) for calls"},
        {"class alone", {{}, {"slack", "Slack"}, ""}, "Slack (Slack) for calls"},
        {"executable alone", {{}, {"main", "Window"}, "teams-for-linux"}, "Window (Window) for calls"},
        {"unknown class", {{}, {"xterm", "XTerm"}, "xterm"}, "XTerm (XTerm)"},
        {"unknown id", {{"org.example.Thing"}, {"thing", "Thing"}, ""}, "org.example.Thing (Thing)"},
        {"nothing", {{"", ""}, {"", ""}, ""}, "? (?)"},
    };

    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(known(row.owner), row.known);
    }
}

TEST_F(WindowOwnerTest, FollowsWhatIsInstalledAndLetsTheUsersOwnEntryWin)
{
    const WindowOwner editor{.applicationIds = {}, .windowClasses = {"editor", "Editor"}, .executable = ""};
    EXPECT_EQ(known(editor), "Editor (Editor)");
    TemporaryDirectory::write(system_.path() / "editor.desktop", "[Desktop Entry]\nName=Text Editor\n");
    EXPECT_EQ(known(editor), "editor (Text Editor)");
    install("editor.desktop", "My Editor");
    EXPECT_EQ(known(editor), "editor (My Editor)");
    std::filesystem::remove(own_.path() / "editor.desktop");
    EXPECT_EQ(known(editor), "editor (Text Editor)");
    TemporaryDirectory::makeFifo(own_.path() / "trap.desktop");
    EXPECT_EQ(known(editor), "editor (Text Editor)") << "and nothing waits for what is no file";
}

TEST(ProcessNames, TellWhatAProcessIsCalled)
{
    const ProcessNames own = ProcessNames::of(static_cast<std::uint32_t>(::getpid()));
    EXPECT_EQ(own.executable, "tocca_linux_system_tests");
    EXPECT_EQ(own.command, own.executable);
    EXPECT_EQ(own.kernel, own.executable.substr(0, 15));
    for (const std::uint32_t nobody : {0U, 4'000'000'000U}) {
        EXPECT_EQ(ProcessNames::of(nobody).kernel + ProcessNames::of(nobody).executable, "");
        EXPECT_EQ(sandboxedApplication(nobody), "");
    }
}

TEST(ProcessNames, KnowASandboxByItsControlGroup)
{
    const std::string kSlice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

    const struct {
        const char* group;
        const char* application;
    } kRows[] = {
        {"app-flatpak-org.keepassxc.KeePassXC-4711.scope\n", "org.keepassxc.KeePassXC"},
        {"app-flatpak-com.example.With\\x2ddash-12.scope/inner\n", "com.example.With-dash"},
        {"snap.slack.slack-6a1b.scope", "slack_slack"},
        {"snap.zoom-client.zoom-client.6a1b.scope", "zoom-client_zoom"},
        {"app-gnome-org.gnome.Terminal-99.scope\n", ""}, // also holds what is started inside
        {"vte-spawn-1.scope", ""},
        {"", ""},
    };

    for (const auto& row : kRows) {
        EXPECT_EQ(applicationOfControlGroup(kSlice + row.group), row.application) << row.group;
    }
}

} // namespace

} // namespace tocca::platform::linux
