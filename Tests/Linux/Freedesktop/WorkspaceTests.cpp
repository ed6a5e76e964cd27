#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"

#include "Instruments/TemporaryDirectory.h"
#include "Instruments/XServer.h"
#include "Instruments/XWindow.h"
#include "Linux/Qt/QtMachine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using instruments::XServer;

using instruments::TemporaryDirectory;

using instruments::XWindow;

constexpr const char* kActive = "_NET_ACTIVE_WINDOW";

class WorkspaceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ::setenv("XDG_DATA_HOME", data_.path().c_str(), 1);
        ::setenv("LC_ALL", "de_DE.UTF-8", 1);
        std::filesystem::create_directory(data_.path() / "applications");
        TemporaryDirectory::write(data_.path() / "applications" / "org.keepassxc.KeePassXC.desktop",
                                  "[Desktop Entry]\nName=KeePassXC\nName[de]=Schlüsselbund\n");
    }

    void TearDown() override
    {
        ::unsetenv("XDG_DATA_HOME");
        ::unsetenv("LC_ALL");
    }

    void start()
    {
        workspace_ = std::make_unique<LinuxWorkspace>(secureInput_, machine_.timers(), [] {});
        activations_ = workspace_->onActivation([this](const auto& application) {
            EXPECT_EQ(application, workspace_->frontmostApplication());
            heard_.push_back(application ? application->bundleIdentifier.value_or("?") + " " +
                                               application->localizedName.value_or("?")
                                         : "untold");
        });
        EXPECT_EQ(workspace_->frontmostApplication(), std::nullopt);
    }

    bool hears(const std::vector<std::string>& expected)
    {
        return machine_.runUntil([&] { return heard_ == expected; });
    }

    TemporaryDirectory data_;
    XServer server_;
    QtMachine machine_;
    SecureInput secureInput_;
    std::unique_ptr<LinuxWorkspace> workspace_;
    Subscription activations_;
    std::vector<std::string> heard_;
};

TEST_F(WorkspaceTest, TellsWhoComesToTheFrontAndWhatTheyAreCalled)
{
    XWindow vault({.instance = "keepassxc", .className = "KeePassXC"});
    XWindow another({.instance = "keepassxc", .className = "KeePassXC"});
    XWindow editor({.instance = "editor", .className = "Editor"});
    vault.publishAs(kActive);
    start();
    EXPECT_TRUE(hears({"org.keepassxc.KeePassXC Schlüsselbund"}));
    another.publishAs(kActive); // another window of the program in front
    editor.publishAs(kActive);
    EXPECT_TRUE(hears({"org.keepassxc.KeePassXC Schlüsselbund", "Editor Editor"}));
    editor.publishNoneAs(kActive);
    EXPECT_TRUE(hears({"org.keepassxc.KeePassXC Schlüsselbund", "Editor Editor", "? ?"}));
    editor.withdraw(kActive);
    EXPECT_TRUE(hears({"org.keepassxc.KeePassXC Schlüsselbund", "Editor Editor", "? ?", "untold"}));

    activations_.reset();
    vault.publishAs(kActive);
    EXPECT_TRUE(machine_.runUntil([this] { return workspace_->frontmostApplication().has_value(); }));
    EXPECT_EQ(heard_.size(), 4U) << "nobody listens any more";
}

TEST_F(WorkspaceTest, ComesBackWithTheServer)
{
    start();
    auto prompt = std::make_unique<XWindow>(XWindow::Traits{.instance = "pinentry", .className = "Pinentry"});
    prompt->publishAs(kActive);
    EXPECT_TRUE(hears({"Pinentry Pinentry"}));
    EXPECT_TRUE(secureInput_.isActive());
    server_.kill();
    prompt.reset();
    EXPECT_TRUE(hears({"Pinentry Pinentry", "untold"}));
    EXPECT_FALSE(secureInput_.isActive()) << "what is not seen any more is not waited for";
    server_.start();
    XWindow editor({.instance = "editor", .className = "Editor"});
    editor.publishAs(kActive);
    EXPECT_TRUE(hears({"Pinentry Pinentry", "untold", "Editor Editor"}));
}

TEST_F(WorkspaceTest, KnowsNobodyInAWaylandSession)
{
    const auto path = data_.path() / "wayland-0";
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    ::setenv("WAYLAND_DISPLAY", path.c_str(), 1);
    XWindow vault({.instance = "keepassxc", .className = "KeePassXC"});
    vault.publishAs(kActive);
    start();
    {
        ::unsetenv("WAYLAND_DISPLAY");
        SecureInput ignored;
        const LinuxWorkspace witness(ignored, machine_.timers(), [] {});
        EXPECT_TRUE(machine_.runUntil([&] { return witness.frontmostApplication().has_value(); }));
    }
    EXPECT_EQ(workspace_->frontmostApplication(), std::nullopt);
    ::close(socket);
}

} // namespace

} // namespace tocca::platform::linux
