#include "Support/ThreadRole.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tocca {

namespace {

thread_local ThreadRole currentRole = ThreadRole::None;

const char* nameOf(ThreadRole role) noexcept
{
    switch (role) {
    case ThreadRole::None:
        return "none";
    case ThreadRole::Main:
        return "main";
    case ThreadRole::Capture:
        return "capture";
    case ThreadRole::AudioQueue:
        return "audio queue";
    case ThreadRole::Render:
        return "render";
    }
    return "unknown";
}

} // namespace

void setThreadRole(ThreadRole role) noexcept
{
    currentRole = role;
}

ThreadRole threadRole() noexcept
{
    return currentRole;
}

void requireThreadRole(std::initializer_list<ThreadRole> allowed, const char* member) noexcept
{
    if (std::find(allowed.begin(), allowed.end(), currentRole) != allowed.end()) {
        return;
    }
    std::fprintf(stderr, "%s called on a thread with role '%s'\n", member, nameOf(currentRole));
    std::abort();
}

} // namespace tocca
