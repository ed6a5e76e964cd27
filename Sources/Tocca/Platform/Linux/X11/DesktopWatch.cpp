#include "Platform/Linux/X11/DesktopWatch.h"

#include "Platform/Linux/X11/XReply.h"

#include <cstdint>
#include <utility>

namespace tocca::platform::linux {

std::unique_ptr<DesktopWatch> DesktopWatch::open(Observers observers)
{
    int screenNumber = 0;
    Connection connection(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    while (screenNumber-- > 0 && screen.rem > 1) {
        xcb_screen_next(&screen);
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<DesktopWatch>(
        new DesktopWatch(std::move(connection), screen.data->root, std::move(observers)));
}

DesktopWatch::DesktopWatch(Connection connection, xcb_window_t root, Observers observers)
    : connection_(std::move(connection))
    , root_(root)
    , questions_(connection_.get())
    , inquiry_(connection_.get(), questions_)
    , prompts_(connection_.get(), root, questions_, inquiry_, std::move(observers.promptChanged))
    , front_(root, questions_, inquiry_,
             [this, tell = std::move(observers.frontChanged)](const std::optional<WindowFacts>& facts) {
                 prompts_.setFront(facts);
                 tell(facts);
             })
{
    inquiry_.prepare([this] { begin(); });
    xcb_flush(connection_.get());
}

void DesktopWatch::begin()
{
    constexpr std::uint32_t kEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | PromptWatch::kRootEvents;
    xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &kEvents);
    prompts_.begin();
    front_.look();
}

bool DesktopWatch::serve()
{
    xcb_connection_t* const connection = connection_.get();
    bool hasServed = true;
    while (hasServed) {
        hasServed = false;
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection)}) {
            handle(*event);
            hasServed = true;
        }
        hasServed = questions_.serve() || hasServed;
        xcb_flush(connection); // which may read, so that the descriptor tells nothing of what it has read
    }
    return xcb_connection_has_error(connection) == 0;
}

void DesktopWatch::handle(const xcb_generic_event_t& event)
{
    constexpr std::uint8_t kSentByClient = 0x80;
    if ((event.response_type & ~kSentByClient) == XCB_PROPERTY_NOTIFY) {
        front_.propertyChanged(reinterpret_cast<const xcb_property_notify_event_t&>(event).atom);
    } else {
        prompts_.handle(event);
    }
}

} // namespace tocca::platform::linux
