#include "Platform/Linux/X11/DesktopWatch.h"

#include <cstdint>
#include <utility>

namespace tocca::platform::linux {

std::unique_ptr<DesktopWatch> DesktopWatch::open(Observers observers)
{
    auto connection = XConnection::open();
    if (!connection) {
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<DesktopWatch>(new DesktopWatch(std::move(*connection), std::move(observers)));
}

DesktopWatch::DesktopWatch(XConnection connection, Observers observers)
    : connection_(std::move(connection))
    , questions_(connection_.get())
    , inquiry_(connection_.get(), questions_)
    , prompts_(connection_.get(), connection_.screen(), questions_, inquiry_,
               {.prompting = std::move(observers.promptChanged),
                .shellFocused = std::move(observers.shellFocused)})
    , front_(connection_, questions_, inquiry_,
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
    xcb_change_window_attributes(connection_.get(), connection_.root(), XCB_CW_EVENT_MASK, &kEvents);
    prompts_.begin();
    front_.look();
}

bool DesktopWatch::serve()
{
    bool hasServed = true;
    while (hasServed) {
        hasServed = false;
        while (const auto event = connection_.nextEvent()) {
            handle(*event);
            hasServed = true;
        }
        hasServed = questions_.serve() || hasServed;
        xcb_flush(
            connection_.get()); // which may itself read events: they no longer make the descriptor readable
    }
    return connection_.isAlive();
}

void DesktopWatch::handle(const xcb_generic_event_t& event)
{
    if (typeOf(event) == XCB_PROPERTY_NOTIFY) {
        front_.propertyChanged(reinterpret_cast<const xcb_property_notify_event_t&>(event).atom);
    } else {
        prompts_.handle(event);
    }
}

} // namespace tocca::platform::linux
