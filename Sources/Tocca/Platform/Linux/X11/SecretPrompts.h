#pragma once

#include <string_view>

namespace tocca::platform::linux {

/// Whether a program or window class of this name locks the screen or asks for a password. Letter case does not matter.
[[nodiscard]] bool isSecretPrompt(std::string_view name);

/// The same for the name the kernel gives a process, of which it keeps 15 bytes.
[[nodiscard]] bool isSecretPromptProcess(std::string_view kernelName);

} // namespace tocca::platform::linux
