#include "Platform/Linux/Freedesktop/Applications/KnownApplications.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <string>

namespace tocca::platform::linux {

namespace {

// In lower case.
constexpr std::array<std::string_view, 21> kPasswordStores{
    "1password",
    "com.onepassword.onepassword",
    "bitwarden",
    "com.bitwarden.desktop",
    "lastpass",
    "keepass",
    "keepass2",
    "keepassxc",
    "org.keepassxc.keepassxc",
    "kwalletmanager",
    "kwalletmanager5",
    "org.kde.kwalletmanager",
    "org.kde.kwalletmanager5",
    "org.gnome.seahorse.application",
    "seahorse",
    "org.gnome.passwordsafe",
    "org.gnome.world.secrets",
    "secrets",
    "org.ijhack.qtpass",
    "qtpass",
    "pwsafe",
};
constexpr std::array<std::string_view, 24> kCalls{
    "us.zoom.zoom",
    "zoom",
    "zoom-client",
    "com.microsoft.teams",
    "microsoft teams - preview",
    "teams",
    "com.github.ismaelmartinez.teams_for_linux",
    "teams-for-linux",
    "com.slack.slack",
    "slack",
    "com.discordapp.discord",
    "com.discordapp.discordcanary",
    "dev.vencord.vesktop",
    "discord",
    "discordcanary",
    "discordptb",
    "vesktop",
    "webcord",
    "com.skype.client",
    "skype",
    "skypeforlinux",
    "ciscocollabhost",
    "webex",
    "org.gnome.calls",
};

ApplicationKind kindOfLowerCased(std::string_view name)
{
    const auto isIn = [name](const auto& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (isIn(kPasswordStores)) {
        return ApplicationKind::passwordStore;
    }
    return isIn(kCalls) ? ApplicationKind::call : ApplicationKind::other;
}

} // namespace

ApplicationKind kindOfApplication(std::string_view name)
{
    const std::string lower = lowerCased(name);
    const auto kind = kindOfLowerCased(lower);
    // A Snap's window is called <snap>_<application>.
    return kind == ApplicationKind::other
               ? kindOfLowerCased(std::string_view(lower).substr(0, lower.find('_')))
               : kind;
}

} // namespace tocca::platform::linux
