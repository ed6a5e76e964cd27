#include "Linux/X11/XServer.h"

#include "Platform/Linux/X11/XReply.h"

#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace tocca::platform::linux {

namespace {

constexpr std::chrono::seconds kDeadline{20};

} // namespace

XServer::XServer()
{
    ::unsetenv("WAYLAND_DISPLAY");
    start("");
    ::setenv("DISPLAY", (":" + number_).c_str(), 1);
}

XServer::~XServer()
{
    ::unsetenv("DISPLAY");
}

void XServer::start(const std::string& display)
{
    std::vector<std::string> command{"Xvfb"};
    if (!display.empty()) {
        command.push_back(display);
    }
    // The server writes the number of its display once it is ready.
    for (const char* argument :
         {"-displayfd", "1", "-nolisten", "tcp", "-noreset", "-screen", "0", "320x200x24"}) {
        command.emplace_back(argument);
    }
    process_ = std::make_unique<testkit::Process>(command);
    if (!process_->waitForLine("", kDeadline)) {
        throw std::runtime_error("Xvfb does not start: " + process_->output());
    }
    number_ = process_->output().substr(0, process_->output().find('\n'));
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

void XServer::startAgain()
{
    start(":" + number_);
}

void XServer::setLayoutOption(const std::string& option)
{
    // The empty option comes first, because options add up.
    testkit::Process setter({"setxkbmap", "-layout", "us", "-option", "", "-option", option});
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
    const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(connection_, cookie, nullptr));
    isActive_ = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

} // namespace tocca::platform::linux
