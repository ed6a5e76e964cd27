#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/Now.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace tocca::endtoend {
namespace {

using namespace std::chrono_literals;

/// Brings the session's sound server back, whatever became of the test.
struct SoundServerTakenAway {
    SoundServerTakenAway() { soundServer("stop-sound"); }

    ~SoundServerTakenAway()
    {
        if (!isBack) {
            soundServer("start-sound");
        }
    }

    SoundServerTakenAway(const SoundServerTakenAway&) = delete;
    SoundServerTakenAway& operator=(const SoundServerTakenAway&) = delete;

    void bringBack()
    {
        isBack = true;
        soundServer("start-sound");
    }

    bool isBack = false;
};

void expectCleanEnd(instruments::Process& program)
{
    program.signal(SIGTERM);
    EXPECT_EQ(program.waitForExit(kPatience), 0) << program.output();
}

class Lifecycle : public ProgramAtWork {};

TEST_F(Lifecycle, EndsCleanlyWhenAskedTo)
{
    expectCleanEnd(program);
    EXPECT_EQ(program.countLines(kListens), 1);
}

TEST_F(Lifecycle, IsHeardAgainAfterTheSoundServerWasKilledAndStartedAnew)
{
    recorder.reset();
    SoundServerTakenAway server;
    constexpr std::array<std::uint16_t, 3> kIntoTheVoid{KEY_A, KEY_B, KEY_C};
    (void)instruments::type(keyboard, kIntoTheVoid, {}, random);
    EXPECT_TRUE(program.isRunning()) << program.output();

    server.bringBack();
    recordAgain();
    EXPECT_TRUE(instruments::becomesAudible(keyboard, *recorder, kPatience)) << program.output();
    expectCleanEnd(program);
}

TEST(LifecycleWithoutSound, SaysOnceThatItIsSilentAndRunsOn)
{
    const SoundServerTakenAway server;
    instruments::Process program = startProgram();
    ASSERT_TRUE(program.waitForLine(kListens, kPatience)) << program.output();
    ASSERT_TRUE(program.waitForLine("No sound:", kPatience)) << program.output();

    instruments::XTestKeyboard keyboard;
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same typing each time
    (void)instruments::type(keyboard, instruments::ordinaryKeys(), {}, random);
    EXPECT_TRUE(program.isRunning()) << program.output();
    EXPECT_EQ(program.countLines("No sound:"), 1) << program.output();
    expectCleanEnd(program);
}

TEST(LifecycleWithoutDisplay, SaysSoAndEndsAndHoldsNobodyUp)
{
    for (const auto& nowhere : {std::optional<std::string>(), std::optional<std::string>(":977")}) {
        instruments::Process program =
            startProgram({{"DISPLAY", nowhere}, {"WAYLAND_DISPLAY", std::nullopt}});
        EXPECT_EQ(program.waitForExit(kPatience), 1) << program.output();
        EXPECT_EQ(program.countLines("no display answers"), 1) << program.output();
    }
}

TEST(LifecycleWithoutDisplay, SaysOnceThatItCannotListenAndWaits)
{
    constexpr const char* kRefused = "Cannot start: Accessibility permission not granted yet.";
    instruments::Process program = startProgram(
        {{"DISPLAY", std::nullopt}, {"WAYLAND_DISPLAY", std::nullopt}, {"QT_QPA_PLATFORM", "offscreen"}});
    ASSERT_TRUE(program.waitForLine(kRefused, kPatience)) << program.output();
    EXPECT_FALSE(program.waitForLine(kRefused, 4s, 2)) << "it asks every 1.5 s, but says so once";
    EXPECT_TRUE(program.isRunning()) << program.output();
    EXPECT_EQ(program.countLines(kListens), 0);
    expectCleanEnd(program);
}

/// A server that takes every connection and never says a word.
class Mute {
public:
    explicit Mute(const std::filesystem::path& place)
        : place_(place)
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        place.string().copy(address.sun_path, sizeof(address.sun_path) - 1);
        std::filesystem::create_directories(place.parent_path());
        if (bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
            listen(socket_, 1) != 0) {
            throw std::system_error(errno, std::generic_category(), place.string());
        }
    }

    ~Mute()
    {
        for (const int descriptor : {connection_, socket_}) {
            close(descriptor);
        }
        std::filesystem::remove(place_);
    }

    Mute(const Mute&) = delete;
    Mute& operator=(const Mute&) = delete;

    /// Waits for somebody who connects and sends something.
    [[nodiscard]] bool isSpokenTo()
    {
        constexpr int kMilliseconds =
            std::chrono::duration_cast<std::chrono::milliseconds>(kPatience).count();
        pollfd waiting{.fd = socket_, .events = POLLIN, .revents = 0};
        if (poll(&waiting, 1, kMilliseconds) <= 0) {
            return false;
        }
        connection_ = accept(socket_, nullptr, nullptr);
        waiting.fd = connection_;
        return poll(&waiting, 1, kMilliseconds) > 0;
    }

private:
    const std::filesystem::path place_;
    int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int connection_ = -1;
};

TEST(LifecycleOfTheStuck, AServerThatHangsDoesNotKeepItFromEnding)
{
    const std::filesystem::path runtime = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
    const auto bus = runtime / "mute-bus";

    struct Row {
        const char* what;
        std::filesystem::path place;
        instruments::Process::Environment environment;
    };

    for (const Row& row : {Row{"bus", bus, {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.string()}}},
                           Row{"X server", "/tmp/.X11-unix/X978", {{"DISPLAY", ":978"}}}}) {
        SCOPED_TRACE(row.what);
        Mute server(row.place);
        instruments::Process program = startProgram(row.environment);
        ASSERT_TRUE(server.isSpokenTo()) << program.output();
        const double from = instruments::now();
        program.signal(SIGTERM);
        EXPECT_EQ(program.waitForExit(kPatience), 128 + SIGTERM) << program.output();
        EXPECT_LT(instruments::now() - from, 5.0) << "meant: within two seconds";
    }
}

TEST_F(Lifecycle, ASecondStartSaysWhenTheFirstDoesNotAnswer)
{
    program.signal(SIGSTOP);
    instruments::Process second = startProgram();
    EXPECT_EQ(second.waitForExit(kPatience), 1) << second.output();
    EXPECT_EQ(second.countLines("does not answer"), 1) << second.output();
    program.signal(SIGCONT);
    expectCleanEnd(program);
}

} // namespace
} // namespace tocca::endtoend
