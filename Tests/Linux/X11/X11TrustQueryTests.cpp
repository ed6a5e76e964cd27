#include "Instruments/TemporaryDirectory.h"
#include "Instruments/XServer.h"
#include "Platform/Linux/X11/Input/X11TrustQuery.h"
#include "Platform/StandardOutput.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using instruments::XServer;

using instruments::TemporaryDirectory;

class Lines : public StandardOutput {
public:
    void printLine(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

TEST(X11TrustQuery, TrustsAnXServerForAsLongAsItLives)
{
    Lines output;
    XServer server;
    X11TrustQuery query(output);
    EXPECT_TRUE(query.isTrusted());
    EXPECT_TRUE(query.isTrusted());
    EXPECT_TRUE(query.promptForTrust());
    EXPECT_TRUE(output.lines.empty());

    server.kill();
    EXPECT_FALSE(query.isTrusted());
    server.start();
    EXPECT_TRUE(query.isTrusted());
}

TEST(X11TrustQuery, TellsOnceWhatIsMissing)
{
    Lines output;
    X11TrustQuery query(output);
    ::unsetenv("WAYLAND_DISPLAY");
    ::setenv("DISPLAY", ":65432", 1);
    EXPECT_FALSE(query.isTrusted());
    EXPECT_TRUE(output.lines.empty()) << "the plain question must not prompt";
    EXPECT_FALSE(query.promptForTrust());
    EXPECT_FALSE(query.promptForTrust());
    EXPECT_EQ(output.lines.size(), 1U);
}

TEST(X11TrustQuery, NeverTakesAnXServerInsideAWaylandSessionForTheWholeSession)
{
    const TemporaryDirectory runtime;
    Lines output;
    XServer server;
    X11TrustQuery query(output);
    ::setenv("XDG_RUNTIME_DIR", runtime.path().c_str(), 1);
    ::setenv("WAYLAND_DISPLAY", "wayland-7", 1);
    EXPECT_TRUE(query.isTrusted()) << "there is no compositor at that name";

    const int compositor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (runtime.path() / "wayland-7")
        .string()
        .copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(compositor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_FALSE(query.isTrusted());
    EXPECT_FALSE(query.promptForTrust());
    ASSERT_EQ(output.lines.size(), 1U);
    EXPECT_NE(output.lines.front().find("Wayland"), std::string::npos);

    ::setenv("WAYLAND_DISPLAY", (runtime.path() / "wayland-7").c_str(), 1); // an absolute path is allowed
    EXPECT_FALSE(query.isTrusted());
    ::close(compositor);
    ::unsetenv("WAYLAND_DISPLAY");
}

} // namespace

} // namespace tocca::platform::linux
