#include "Platform/Linux/Freedesktop/Applications/WindowOwner.h"

#include "Platform/Linux/Freedesktop/Applications/KnownApplications.h"

namespace tocca::platform::linux {

namespace {

std::optional<InstalledApplication> installed(const WindowOwner& owner, DesktopEntries& entries)
{
    for (const std::string& id : owner.applicationIds) {
        if (auto application = entries.byId(id)) {
            return application;
        }
    }
    for (const std::string& windowClass : owner.windowClasses) {
        if (auto application = entries.byWindowClass(windowClass)) {
            return application;
        }
    }
    return std::nullopt;
}

} // namespace

RunningApplication applicationOf(const WindowOwner& owner, DesktopEntries& entries)
{
    const auto application = installed(owner, entries);
    std::vector<std::string> names = owner.applicationIds;
    if (application) {
        names.push_back(application->id);
    }
    // The class before the instance, which is often a detail of one window.
    names.insert(names.end(), owner.windowClasses.rbegin(), owner.windowClasses.rend());
    std::erase(names, "");
    RunningApplication running;
    if (!names.empty()) {
        running.bundleIdentifier = application ? application->id : names.front();
    }
    names.push_back(owner.executable);
    for (auto name = names.begin(); name != names.end() && running.kind == ApplicationKind::other; ++name) {
        running.kind = kindOfApplication(*name);
    }
    if (application) {
        running.localizedName = entries.nameOf(*application);
    }
    if (!running.localizedName && !owner.windowClasses.empty() && !owner.windowClasses.back().empty()) {
        running.localizedName = owner.windowClasses.back();
    }
    return running;
}

} // namespace tocca::platform::linux
