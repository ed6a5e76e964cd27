#include "Platform/Linux/Freedesktop/Applications/KnownApplications.h"

#include "Platform/Linux/System/LowerCase.h"

#include <algorithm>
#include <array>

namespace tocca::platform::linux {

namespace {

struct KnownApplication {
    std::string_view name; ///< in lower case
    std::string_view identifier;
};

/// Where the same program runs here under other names, or where one of this desktop has the part of one elsewhere: its
/// password stores are the key chain, its own telephone is FaceTime.
constexpr std::array kApplications{
    // 1Password
    KnownApplication{"1password", "com.1password.1password"},
    KnownApplication{"com.onepassword.onepassword", "com.1password.1password"},
    // Bitwarden
    KnownApplication{"bitwarden", "com.bitwarden.desktop"},
    KnownApplication{"com.bitwarden.desktop", "com.bitwarden.desktop"},
    // LastPass
    KnownApplication{"lastpass", "com.lastpass.LastPass"},

    // Password stores of this desktop
    KnownApplication{"keepass", "com.apple.keychainaccess"},
    KnownApplication{"keepass2", "com.apple.keychainaccess"},
    KnownApplication{"keepassxc", "com.apple.keychainaccess"},
    KnownApplication{"org.keepassxc.keepassxc", "com.apple.keychainaccess"},
    KnownApplication{"kwalletmanager", "com.apple.keychainaccess"},
    KnownApplication{"kwalletmanager5", "com.apple.keychainaccess"},
    KnownApplication{"org.kde.kwalletmanager", "com.apple.keychainaccess"},
    KnownApplication{"org.kde.kwalletmanager5", "com.apple.keychainaccess"},
    KnownApplication{"org.gnome.seahorse.application", "com.apple.keychainaccess"},
    KnownApplication{"seahorse", "com.apple.keychainaccess"},
    KnownApplication{"org.gnome.passwordsafe", "com.apple.keychainaccess"},
    KnownApplication{"org.gnome.world.secrets", "com.apple.keychainaccess"},
    KnownApplication{"secrets", "com.apple.keychainaccess"},
    KnownApplication{"org.ijhack.qtpass", "com.apple.keychainaccess"},
    KnownApplication{"qtpass", "com.apple.keychainaccess"},
    KnownApplication{"pwsafe", "com.apple.keychainaccess"},

    // Zoom
    KnownApplication{"us.zoom.zoom", "us.zoom.xos"},
    KnownApplication{"zoom", "us.zoom.xos"},
    KnownApplication{"zoom-client", "us.zoom.xos"},
    // Teams: Microsoft's former client, and the one that is kept up for it
    KnownApplication{"com.microsoft.teams", "com.microsoft.teams"},
    KnownApplication{"microsoft teams - preview", "com.microsoft.teams"},
    KnownApplication{"teams", "com.microsoft.teams"},
    KnownApplication{"com.github.ismaelmartinez.teams_for_linux", "com.microsoft.teams2"},
    KnownApplication{"teams-for-linux", "com.microsoft.teams2"},
    // Slack
    KnownApplication{"com.slack.slack", "com.tinyspeck.slackmacgap"},
    KnownApplication{"slack", "com.tinyspeck.slackmacgap"},
    // Discord, its test versions and other clients of it
    KnownApplication{"com.discordapp.discord", "com.discord"},
    KnownApplication{"com.discordapp.discordcanary", "com.discord"},
    KnownApplication{"dev.vencord.vesktop", "com.discord"},
    KnownApplication{"discord", "com.discord"},
    KnownApplication{"discordcanary", "com.discord"},
    KnownApplication{"discordptb", "com.discord"},
    KnownApplication{"vesktop", "com.discord"},
    KnownApplication{"webcord", "com.discord"},
    // Skype
    KnownApplication{"com.skype.client", "com.skype.skype"},
    KnownApplication{"skype", "com.skype.skype"},
    KnownApplication{"skypeforlinux", "com.skype.skype"},
    // Webex, whose program has another name
    KnownApplication{"ciscocollabhost", "com.cisco.webexmeetingsapp"},
    KnownApplication{"webex", "com.cisco.webexmeetingsapp"},
    // This desktop's own telephone
    KnownApplication{"org.gnome.calls", "com.apple.FaceTime"},
};

} // namespace

std::optional<std::string> knownApplication(std::string_view name)
{
    const std::string wanted = lowerCased(name);
    const auto find = [](std::string_view text) {
        return std::find_if(kApplications.begin(), kApplications.end(),
                            [text](const KnownApplication& known) { return known.name == text; });
    };
    auto known = find(wanted);
    if (known == kApplications.end()) {
        known = find(std::string_view(wanted).substr(0, wanted.find('_'))); // a Snap's: <snap>_<application>
    }
    return known != kApplications.end() ? std::optional(std::string(known->identifier)) : std::nullopt;
}

} // namespace tocca::platform::linux
