#pragma once

#include "Platform/Desktop/Workspace.h"

namespace tocca::app {

/// Whether the application keeps secrets: a password manager or key chain, by identifier or by a word in its name.
/// Threads: any.
[[nodiscard]] bool isSensitiveApplication(const platform::RunningApplication& application);

/// Whether the application makes calls, by identifier alone. Threads: any.
[[nodiscard]] bool isCallApplication(const platform::RunningApplication& application);

} // namespace tocca::app
