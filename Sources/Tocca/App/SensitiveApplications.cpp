#include "App/SensitiveApplications.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tocca::app {

namespace {

constexpr std::array<std::string_view, 5> kSensitiveBundleIdentifiers{
    "com.agilebits.onepassword", "com.1password.1password", "com.bitwarden.desktop",
    "com.apple.keychainaccess",  "com.lastpass.LastPass",
};

constexpr std::array<std::string_view, 9> kCallBundleIdentifiers{
    "us.zoom.xos",
    "zoom.us",
    "com.microsoft.teams",
    "com.microsoft.teams2",
    "com.tinyspeck.slackmacgap",
    "com.discord",
    "com.apple.FaceTime",
    "com.skype.skype",
    "com.cisco.webexmeetingsapp",
};

bool contains(std::span<const std::string_view> identifiers, const platform::RunningApplication& application)
{
    const std::string id = lowerCased(application.bundleIdentifier.value_or(""));
    return std::any_of(identifiers.begin(), identifiers.end(),
                       [&id](std::string_view listed) { return lowerCased(listed) == id; });
}

} // namespace

bool isSensitiveApplication(const platform::RunningApplication& application)
{
    const std::string name = lowerCased(application.localizedName.value_or(""));
    return application.kind == platform::ApplicationKind::passwordStore ||
           contains(kSensitiveBundleIdentifiers, application) || name.find("password") != std::string::npos ||
           name.find("keychain") != std::string::npos;
}

bool isCallApplication(const platform::RunningApplication& application)
{
    return application.kind == platform::ApplicationKind::call ||
           contains(kCallBundleIdentifiers, application);
}

} // namespace tocca::app
