#include "Platform/Host.h"

#include <cstdio>
#include <cstdlib>

namespace tocca::platform {

namespace {

Host* installedHost = nullptr;

} // namespace

void setDefaultHost(Host& host)
{
    installedHost = &host;
}

Host& defaultHost()
{
    if (installedHost == nullptr) {
        std::fputs("a shared controller was used before the platform was installed\n", stderr);
        std::abort();
    }
    return *installedHost;
}

} // namespace tocca::platform
