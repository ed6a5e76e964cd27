#include "Platform/Linux/X11/SecretPrompts.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kKernelKeeps = 15;

/// In lower case; a star at the end stands for anything.
constexpr std::array kNames{
    // Screen lockers
    std::string_view("cinnamon-screensaver*"),
    std::string_view("gnome-screensaver*"),
    std::string_view("gtklock"),
    std::string_view("hyprlock"),
    std::string_view("i3lock*"),
    std::string_view("kscreenlocker_greet"),
    std::string_view("light-locker"),
    std::string_view("mate-screensaver*"),
    std::string_view("physlock"),
    std::string_view("slock"),
    std::string_view("swaylock"),
    std::string_view("waylock"),
    std::string_view("xfce4-screensaver*"),
    std::string_view("xlock"),
    std::string_view("xscreensaver*"),
    std::string_view("xsecurelock"),
    std::string_view("xtrlock"),
    // What xsecurelock lets draw and ask
    std::string_view("auth_x11"),
    std::string_view("saver_multiplex"),
    // Passphrases of keys and key rings
    std::string_view("gcr-prompter*"),
    std::string_view("gnome-ssh-askpass*"),
    std::string_view("kwalletd*"),
    std::string_view("ksshaskpass"),
    std::string_view("lxqt-openssh-askpass"),
    std::string_view("pinentry*"),
    std::string_view("seahorse-ssh-askpass"),
    std::string_view("ssh-askpass*"),
    std::string_view("x11-ssh-askpass"),
    // Leave to act as somebody else
    std::string_view("gksu*"),
    std::string_view("kdesu*"),
    std::string_view("lxpolkit"),
    std::string_view("lxqt-policykit-agent"),
    std::string_view("lxqt-sudo"),
    std::string_view("mate-polkit"),
    std::string_view("polkit-*"),
    std::string_view("ukui-polkit"),
    std::string_view("xfce-polkit"),
};

bool isListed(const std::string& name, std::size_t kept)
{
    return std::any_of(kNames.begin(), kNames.end(), [&](std::string_view listed) {
        if (listed.ends_with('*')) {
            return name.starts_with(listed.substr(0, std::min(listed.size() - 1, kept)));
        }
        return name == listed.substr(0, kept);
    });
}

} // namespace

bool isSecretPrompt(std::string_view name)
{
    return isListed(lowerCased(name), std::string_view::npos);
}

bool isSecretPromptProcess(std::string_view kernelName)
{
    return isListed(lowerCased(kernelName), kKernelKeeps);
}

} // namespace tocca::platform::linux
