#include "Instruments/XServer.h"

#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include <unistd.h>

// The tests that use it change their environment on one thread.
// NOLINTBEGIN(concurrency-mt-unsafe)
namespace tocca::instruments {

namespace {

constexpr std::chrono::seconds kDeadline{20};

/// A display of this process's own, far from those that servers choose by themselves: one of them must not take it while
/// it is free between two servers of a test.
std::string ownDisplay()
{
    constexpr int kFirst = 1000;
    constexpr int kCount = 50000;
    return ":" + std::to_string(kFirst + ::getpid() % kCount);
}

} // namespace

XServer::XServer()
{
    ::unsetenv("WAYLAND_DISPLAY");
    ::setenv("DISPLAY", ownDisplay().c_str(), 1);
    start();
}

XServer::~XServer()
{
    ::unsetenv("DISPLAY");
}

void XServer::start()
{
    // The server writes the number of its display once it is ready; its complaints are kept apart from that.
    process_ = std::make_unique<Process>(std::vector<std::string>{
        "sh", "-c",
        "exec Xvfb " + ownDisplay() +
            " -displayfd 1 -nolisten tcp -noreset -screen 0 320x200x24 2>/dev/null"});
    if (!process_->waitForLine("", kDeadline)) {
        throw std::runtime_error("Xvfb does not start");
    }
}

void XServer::kill()
{
    process_->signal(SIGKILL);
    process_->waitForExit(kDeadline);
}

void XServer::pause()
{
    process_->signal(SIGSTOP);
}

void XServer::goOn()
{
    process_->signal(SIGCONT);
}

void XServer::setLayoutOption(const std::string& option)
{
    // The empty option comes first, because options add up.
    Process setter({"setxkbmap", "-layout", "us", "-option", "", "-option", option});
    if (setter.waitForExit(kDeadline) != 0) {
        throw std::runtime_error("setxkbmap: " + setter.output());
    }
}

XServer::KeyboardGrab::KeyboardGrab()
    : connection_(xcb_connect(nullptr, nullptr))
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const auto cookie =
        xcb_grab_keyboard(connection_, 0, root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const std::unique_ptr<xcb_grab_keyboard_reply_t, decltype(&std::free)> reply(
        xcb_grab_keyboard_reply(connection_, cookie, nullptr), &std::free);
    isActive_ = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

} // namespace tocca::instruments

// NOLINTEND(concurrency-mt-unsafe)
