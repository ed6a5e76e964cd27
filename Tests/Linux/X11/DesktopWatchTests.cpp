#include "Platform/Linux/X11/DesktopWatch.h"

#include "Instruments/XServer.h"
#include "Instruments/XWindow.h"
#include "Platform/Linux/System/SecureInput.h"
#include "Platform/Linux/X11/SecretPrompts.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using instruments::XServer;

using instruments::XWindow;

constexpr const char* kActive = "_NET_ACTIVE_WINDOW";

/// Gives this process another name for a scope.
class Disguise {
public:
    explicit Disguise(const char* name)
    {
        ::prctl(PR_GET_NAME, before_.data());
        ::prctl(PR_SET_NAME, name);
    }

    Disguise(const Disguise&) = delete;
    Disguise& operator=(const Disguise&) = delete;

    ~Disguise() { ::prctl(PR_SET_NAME, before_.data()); }

private:
    std::array<char, 16> before_{};
};

class DesktopWatchTest : public ::testing::Test {
protected:
    /// Serves the watch until `condition` holds; false when that takes too long.
    template <class Condition>
    bool serveUntil(Condition condition)
    {
        constexpr std::chrono::seconds kDeadline{20};
        const auto end = std::chrono::steady_clock::now() + kDeadline;
        while (!condition()) {
            pollfd polled{.fd = watch_->fd(), .events = POLLIN, .revents = 0};
            ::poll(&polled, 1, 10);
            isAlive_ = watch_->serve();
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
        }
        return true;
    }

    bool becomesSecure()
    {
        return serveUntil([this] { return secure_.isActive(); });
    }

    bool becomesPlain()
    {
        return serveUntil([this] { return !secure_.isActive(); });
    }

    bool showsInFront(const std::string& className)
    {
        return serveUntil([&] { return front_ && front_->className == className; });
    }

    std::unique_ptr<DesktopWatch> open()
    {
        return DesktopWatch::open({.frontChanged = [this](const auto& facts) { front_ = facts; },
                                   .promptChanged = [this](bool is) { secure_.set(0, is); },
                                   .shellFocused = [this](bool is) { isShellFocused_ = is; }});
    }

    XServer server_;
    XWindow editor_{{.instance = "editor", .className = "Editor"}};
    SecureInput secure_;
    std::optional<WindowFacts> front_;
    std::unique_ptr<DesktopWatch> watch_ = open();
    bool isAlive_ = true;
    bool isShellFocused_ = false;
};

TEST_F(DesktopWatchTest, TellsWhatTheWindowInFrontSaysOfItself)
{
    editor_.setText("_GTK_APPLICATION_ID", "org.example.Editor");
    editor_.publishAs(kActive);
    ASSERT_TRUE(showsInFront("Editor"));
    EXPECT_EQ(front_->instance, "editor");
    EXPECT_EQ(front_->gtkApplicationId, "org.example.Editor");
    EXPECT_EQ(front_->kdeDesktopFile, "");
    EXPECT_EQ(front_->process, static_cast<std::uint32_t>(::getpid())) << "as the server knows it";

    {
        XWindow viewer({.instance = "viewer", .className = "Viewer"});
        viewer.setText("_KDE_NET_WM_DESKTOP_FILE", "org.example.viewer");
        viewer.publishAs(kActive);
        ASSERT_TRUE(showsInFront("Viewer"));
        EXPECT_EQ(front_->kdeDesktopFile, "org.example.viewer");
    }
    editor_.withdraw(kActive);
    EXPECT_TRUE(serveUntil([this] { return !front_; })) << "it is not said any more";
    editor_.publishNoneAs(kActive);
    EXPECT_TRUE(serveUntil([this] { return front_ && front_->process == 0; })) << "nobody is";
}

TEST_F(DesktopWatchTest, IsSecureWhileAPromptHasTheFocus)
{
    editor_.takeFocus();
    {
        XWindow prompt({.instance = "pinentry", .className = "Pinentry-gtk-2"});
        prompt.takeFocus();
        EXPECT_TRUE(becomesSecure());
        editor_.takeFocus();
        EXPECT_TRUE(becomesPlain());
        prompt.takeFocus();
        EXPECT_TRUE(becomesSecure());
    }
    EXPECT_TRUE(becomesPlain()) << "gone with its focus";
}

TEST_F(DesktopWatchTest, KnowsAPromptByItsProcessAndByBeingActive)
{
    XWindow prompt({.instance = "dialog", .className = "Dialog"});
    {
        const Disguise disguise("polkit-gnome-au");
        prompt.takeFocus();
        EXPECT_TRUE(becomesSecure());
    }
    editor_.takeFocus();
    EXPECT_TRUE(becomesPlain());

    XWindow agent({.instance = "lxpolkit", .className = "Lxpolkit"});
    agent.publishAs(kActive);
    EXPECT_TRUE(becomesSecure()) << "active, although the focus is elsewhere";
    editor_.publishAs(kActive);
    EXPECT_TRUE(becomesPlain());
}

TEST_F(DesktopWatchTest, IsSecureWhileALockerCoversTheScreen)
{
    XWindow menu({.instance = "menu", .className = "Menu", .overridesRedirect = true});
    XWindow locker({.instance = "i3lock", .className = "i3lock", .overridesRedirect = true});
    EXPECT_TRUE(becomesSecure());
    locker.hide();
    EXPECT_TRUE(becomesPlain());

    XWindow present({.instance = "slock", .className = "slock", .overridesRedirect = true});
    watch_ = open();
    secure_.set(0, false);
    EXPECT_TRUE(becomesSecure()) << "one that was there before";
}

TEST_F(DesktopWatchTest, IsSecureWhileTheKeyboardIsGrabbedAndAPromptIsOpen)
{
    editor_.takeFocus();
    XWindow prompt({.instance = "ssh-askpass", .className = "Ssh-askpass"});
    XWindow menu({.instance = "menu", .className = "Menu"});
    prompt.publishAs("_NET_CLIENT_LIST");
    editor_.publishAs(kActive);
    ASSERT_TRUE(showsInFront("Editor"));
    EXPECT_FALSE(secure_.isActive());
    ASSERT_TRUE(prompt.grabKeyboard());
    EXPECT_TRUE(becomesSecure());
    prompt.ungrabKeyboard();
    EXPECT_TRUE(becomesPlain());
}

TEST_F(DesktopWatchTest, IsSecureWhileWhoeverCoversTheScreenHasGrabbedTheKeyboard)
{
    editor_.takeFocus();
    XWindow menu({.instance = "menu", .className = "Menu", .overridesRedirect = true});
    XWindow player({.instance = "player", .className = "Player", .coversScreen = true});
    editor_.publishAs(kActive);
    ASSERT_TRUE(showsInFront("Editor"));
    ASSERT_TRUE(menu.grabKeyboard());
    XWindow locker(
        {.instance = "lock", .className = "Lock", .overridesRedirect = true, .coversScreen = true});
    EXPECT_TRUE(becomesSecure());
    menu.ungrabKeyboard();
    EXPECT_TRUE(becomesPlain()) << "a picture without the keyboard";
    ASSERT_TRUE(locker.grabKeyboard());
    EXPECT_TRUE(becomesSecure());
    locker.hide();
    EXPECT_TRUE(becomesPlain()) << "neither a small window of that kind nor a large one of another locks";
}

TEST_F(DesktopWatchTest, TellsWhenTheShellItselfHasTheFocus)
{
    editor_.takeFocus();
    {
        XWindow shell({.instance = "gnome-shell", .className = "Gnome-shell"});
        shell.takeFocus();
        EXPECT_TRUE(serveUntil([this] { return isShellFocused_; }));
        editor_.takeFocus();
        EXPECT_TRUE(serveUntil([this] { return !isShellFocused_; }));
        shell.takeFocus();
        EXPECT_TRUE(serveUntil([this] { return isShellFocused_; }));
    }
    EXPECT_TRUE(serveUntil([this] { return !isShellFocused_; }));
    EXPECT_FALSE(secure_.isActive());
}

TEST_F(DesktopWatchTest, NeverWaitsForAServerThatHangs)
{
    editor_.publishAs(kActive);
    ASSERT_TRUE(showsInFront("Editor"));
    XWindow viewer({.instance = "viewer", .className = "Viewer"});
    viewer.publishAs(kActive);
    server_.pause();
    const auto before = std::chrono::steady_clock::now();
    for (int round = 0; round < 10; ++round) {
        EXPECT_TRUE(watch_->serve());
    }
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
    server_.goOn();
    EXPECT_TRUE(showsInFront("Viewer"));
}

TEST_F(DesktopWatchTest, TellsThatTheServerIsLost)
{
    editor_.publishAs(kActive);
    ASSERT_TRUE(showsInFront("Editor"));
    server_.kill();
    EXPECT_TRUE(serveUntil([this] { return !isAlive_; }));
    EXPECT_EQ(open(), nullptr);
}

TEST(SecretPrompts, AreKnownByWholeNamesAndByFamilies)
{
    for (const char* const name :
         {"i3lock", "i3lock-color", "pinentry", "Pinentry-Qt", "gcr-prompter", "Ksshaskpass",
          "polkit-kde-authentication-agent-1", "lxqt-openssh-askpass", "XScreenSaver"}) {
        EXPECT_TRUE(isSecretPrompt(name)) << name;
    }
    for (const char* const name : {"", "slocker", "xterm", "polkitd", "gnome-terminal", "my-pinentry"}) {
        EXPECT_FALSE(isSecretPrompt(name)) << name;
        EXPECT_FALSE(isSecretPromptProcess(name)) << name;
    }
    // As the kernel cuts them off
    for (const char* const name :
         {"kscreenlocker_g", "polkit-mate-aut", "gnome-screensav", "slock", "lxqt-openssh-as"}) {
        EXPECT_TRUE(isSecretPromptProcess(name)) << name;
    }
    EXPECT_FALSE(isSecretPrompt("kscreenlocker_g"));
}

} // namespace

} // namespace tocca::platform::linux
