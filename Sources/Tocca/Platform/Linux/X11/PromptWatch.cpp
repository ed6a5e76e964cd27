#include "Platform/Linux/X11/PromptWatch.h"

#include "Platform/Linux/System/ProcessNames.h"
#include "Platform/Linux/X11/SecretPrompts.h"
#include "Platform/Linux/X11/XConnection.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

namespace tocca::platform::linux {

namespace {

bool isPrompt(const WindowFacts& facts)
{
    if (isSecretPrompt(facts.instance) || isSecretPrompt(facts.className)) {
        return true;
    }
    const ProcessNames names = ProcessNames::of(facts.process);
    return isSecretPromptProcess(names.kernel) || isSecretPrompt(names.command) ||
           isSecretPrompt(names.executable);
}

bool isShell(const WindowFacts& facts)
{
    return lowerCased(facts.instance) == "gnome-shell";
}

} // namespace

PromptWatch::PromptWatch(xcb_connection_t* connection, const xcb_screen_t& screen, XQuestions& questions,
                         const WindowInquiry& inquiry, Observers observers)
    : connection_(connection)
    , root_(screen.root)
    , questions_(questions)
    , inquiry_(inquiry)
    , observers_(std::move(observers))
    , screenWidth_(screen.width_in_pixels)
    , screenHeight_(screen.height_in_pixels)
{}

void PromptWatch::begin()
{
    askFocus();
    askCovers();
}

void PromptWatch::handle(const xcb_generic_event_t& event)
{
    switch (typeOf(event)) {
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
        focusChanged(reinterpret_cast<const xcb_focus_out_event_t&>(event).mode);
        break;
    case XCB_MAP_NOTIFY:
        if (const auto& map = reinterpret_cast<const xcb_map_notify_event_t&>(event);
            map.override_redirect != 0 && map.event == root_) {
            coverAppeared(map.window);
        }
        break;
    case XCB_CONFIGURE_NOTIFY: {
        const auto& place = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (place.window == root_) {
            screenWidth_ = place.width;
            screenHeight_ = place.height;
        }
        coverPlaced(place.window, place.x, place.y, place.width, place.height);
        break;
    }
    case XCB_UNMAP_NOTIFY:
        coverVanished(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
        break;
    case XCB_DESTROY_NOTIFY:
        coverVanished(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_REPARENT_NOTIFY:
        coverVanished(reinterpret_cast<const xcb_reparent_notify_event_t&>(event).window);
        break;
    default:
        break;
    }
}

void PromptWatch::setFront(const std::optional<WindowFacts>& front)
{
    isFrontPrompt_ = front && isPrompt(*front);
    judge();
}

void PromptWatch::askFocus()
{
    questions_.ask<xcb_get_input_focus_reply_t>(xcb_get_input_focus(connection_),
                                                [this](const xcb_get_input_focus_reply_t* reply) {
                                                    if (reply != nullptr) {
                                                        focusFound(reply->focus);
                                                    }
                                                });
}

void PromptWatch::focusFound(xcb_window_t window)
{
    if (window == focus_) {
        return;
    }
    const auto listenTo = [this](xcb_window_t to, std::uint32_t events) {
        if (to > XCB_INPUT_FOCUS_POINTER_ROOT && to != root_) { // the root's own are always heard
            xcb_change_window_attributes(connection_, to, XCB_CW_EVENT_MASK, &events);
        }
    };
    listenTo(focus_, XCB_EVENT_MASK_NO_EVENT);
    listenTo(window, XCB_EVENT_MASK_FOCUS_CHANGE);
    focus_ = window;
    askFocus(); // it may have moved on before its events were listened to
    if (window <= XCB_INPUT_FOCUS_POINTER_ROOT || window == root_) {
        isFocusPrompt_ = false;
        setShellFocused(false);
        judge();
        return;
    }
    inquiry_.ask(window, [this, window](const WindowFacts& facts) {
        if (window == focus_) {
            isFocusPrompt_ = isPrompt(facts);
            setShellFocused(isShell(facts));
            judge();
        }
    });
}

void PromptWatch::focusChanged(std::uint8_t mode)
{
    const bool isGrabbed = mode == XCB_NOTIFY_MODE_GRAB || mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
    if (isGrabbed != isGrabbed_) {
        isGrabbed_ = isGrabbed;
        isPromptOpen_ = false;
        ++grab_;
        if (isGrabbed) {
            askOpenPrompts();
        }
        judge();
    }
    askFocus();
}

void PromptWatch::askOpenPrompts()
{
    questions_.askProperty(root_, inquiry_.clientList(), [this, grab = grab_](const std::string& value) {
        for (std::size_t at = 0; at + sizeof(xcb_window_t) <= value.size() && grab == grab_;
             at += sizeof(xcb_window_t)) {
            xcb_window_t window = XCB_WINDOW_NONE;
            std::memcpy(&window, value.data() + at, sizeof(window));
            inquiry_.ask(window, [this, grab](const WindowFacts& facts) {
                if (grab == grab_ && isPrompt(facts)) {
                    isPromptOpen_ = true;
                    judge();
                }
            });
        }
    });
}

void PromptWatch::askCovers()
{
    questions_.ask<xcb_query_tree_reply_t>(
        xcb_query_tree(connection_, root_), [this](const xcb_query_tree_reply_t* tree) {
            const int count = tree != nullptr ? xcb_query_tree_children_length(tree) : 0;
            for (int i = 0; i < count; ++i) {
                const xcb_window_t window = xcb_query_tree_children(tree)[i];
                questions_.ask<xcb_get_window_attributes_reply_t>(
                    xcb_get_window_attributes(connection_, window),
                    [this, window](const xcb_get_window_attributes_reply_t* attributes) {
                        if (attributes != nullptr && attributes->override_redirect != 0 &&
                            attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
                            coverAppeared(window);
                        }
                    });
            }
        });
}

void PromptWatch::coverAppeared(xcb_window_t window)
{
    const std::uint64_t number = nextNumber_++;
    covers_[window] = {.number = number};
    questions_.ask<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(connection_, window),
        [this, window, number](const xcb_get_window_attributes_reply_t* attributes) {
            if (Cover* const found = cover(window, number); found != nullptr && attributes != nullptr) {
                found->isSeen = attributes->_class != XCB_WINDOW_CLASS_INPUT_ONLY;
            }
        });
    questions_.ask<xcb_get_geometry_reply_t>(
        xcb_get_geometry(connection_, window), [this, window, number](const xcb_get_geometry_reply_t* place) {
            if (place != nullptr && cover(window, number) != nullptr) {
                coverPlaced(window, place->x, place->y, place->width, place->height);
            }
        });
    inquiry_.ask(window, [this, window, number](const WindowFacts& facts) {
        if (Cover* const found = cover(window, number)) {
            found->isPrompt = isPrompt(facts);
            judge();
        }
    });
}

PromptWatch::Cover* PromptWatch::cover(xcb_window_t window, std::uint64_t number)
{
    const auto found = covers_.find(window);
    return found != covers_.end() && found->second.number == number ? &found->second : nullptr;
}

void PromptWatch::coverPlaced(xcb_window_t window, int x, int y, int width, int height)
{
    const auto found = covers_.find(window);
    if (found != covers_.end()) {
        found->second.isWhole = x <= 0 && y <= 0 && x + width >= screenWidth_ && y + height >= screenHeight_;
        judge();
    }
}

void PromptWatch::setShellFocused(bool isFocused)
{
    if (std::exchange(isShellFocused_, isFocused) != isFocused) {
        observers_.shellFocused(isFocused);
    }
}

void PromptWatch::coverVanished(xcb_window_t window)
{
    if (covers_.erase(window) > 0) {
        judge();
    }
}

void PromptWatch::judge()
{
    const bool isLocked = std::any_of(covers_.begin(), covers_.end(), [this](const auto& entry) {
        const Cover& cover = entry.second;
        return cover.isPrompt || (isGrabbed_ && cover.isSeen && cover.isWhole);
    });
    const bool isPrompting = isFrontPrompt_ || isFocusPrompt_ || (isGrabbed_ && isPromptOpen_) || isLocked;
    if (std::exchange(isPrompting_, isPrompting) != isPrompting) {
        observers_.prompting(isPrompting);
    }
}

} // namespace tocca::platform::linux
