#include "Platform/Linux/X11/WindowFacts.h"

#include <xcb/res.h>

#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace tocca::platform::linux {

namespace {

/// What a C string inside a property holds, without anything behind its end.
std::string firstString(const std::string& bytes)
{
    return bytes.substr(0, bytes.find('\0'));
}

std::uint32_t processIn(const xcb_res_query_client_ids_reply_t* reply)
{
    if (reply == nullptr) {
        return 0;
    }
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        if (xcb_res_client_id_value_value_length(id.data) > 0) {
            return *xcb_res_client_id_value_value(id.data);
        }
    }
    return 0;
}

} // namespace

void WindowInquiry::prepare(std::function<void()> ready)
{
    struct Name {
        std::string_view text;
        xcb_atom_t* atom;
    };

    xcb_prefetch_extension_data(connection_, &xcb_res_id);
    for (const Name name :
         {Name{"_NET_ACTIVE_WINDOW", &activeWindow_}, Name{"_NET_CLIENT_LIST", &clientList_},
          Name{"_NET_WM_PID", &processId_}, Name{"_GTK_APPLICATION_ID", &gtkApplicationId_},
          Name{"_KDE_NET_WM_DESKTOP_FILE", &kdeDesktopFile_}}) {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.text.size()), name.text.data());
        questions_.ask<xcb_intern_atom_reply_t>(cookie,
                                                [atom = name.atom](const xcb_intern_atom_reply_t* reply) {
                                                    if (reply != nullptr) {
                                                        *atom = reply->atom;
                                                    }
                                                });
    }
    // The server answers in order: after this answer the extension's data is here, and asking for it waits for nothing.
    questions_.ask<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus(connection_),
        [this, ready = std::move(ready)](const xcb_get_input_focus_reply_t*) { askVersion(ready); });
}

void WindowInquiry::askVersion(std::function<void()> ready)
{
    constexpr std::uint8_t kMajor = 1;
    constexpr std::uint8_t kMinor = 2;
    const auto* const resources = xcb_get_extension_data(connection_, &xcb_res_id);
    if (resources == nullptr || resources->present == 0) {
        ready();
        return;
    }
    questions_.ask<xcb_res_query_version_reply_t>(
        xcb_res_query_version(connection_, kMajor, kMinor),
        [this, ready = std::move(ready)](const xcb_res_query_version_reply_t* version) {
            hasClientIds_ =
                version != nullptr && version->server_major == kMajor && version->server_minor >= kMinor;
            ready();
        });
}

void WindowInquiry::ask(xcb_window_t window, std::function<void(const WindowFacts&)> answer) const
{
    const auto facts = std::make_shared<WindowFacts>();
    questions_.askProperty(window, XCB_ATOM_WM_CLASS, [facts](const std::string& value) {
        facts->instance = firstString(value);
        if (facts->instance.size() < value.size()) {
            facts->className = firstString(value.substr(facts->instance.size() + 1));
        }
    });
    questions_.askProperty(window, gtkApplicationId_, [facts](const std::string& value) {
        facts->gtkApplicationId = firstString(value);
    });
    questions_.askProperty(window, kdeDesktopFile_,
                           [facts](const std::string& value) { facts->kdeDesktopFile = firstString(value); });
    const auto takeProcess = [facts, answer = std::move(answer)](const std::string& value) {
        if (facts->process == 0 && value.size() >= sizeof(facts->process)) {
            std::memcpy(&facts->process, value.data(), sizeof(facts->process));
        }
        answer(*facts);
    };
    if (hasClientIds_) {
        const xcb_res_client_id_spec_t spec{.client = window,
                                            .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        questions_.ask<xcb_res_query_client_ids_reply_t>(
            xcb_res_query_client_ids(connection_, 1, &spec),
            [facts](const xcb_res_query_client_ids_reply_t* reply) { facts->process = processIn(reply); });
    }
    questions_.askProperty(window, processId_, takeProcess);
}

} // namespace tocca::platform::linux
