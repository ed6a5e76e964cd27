#pragma once

#include "Platform/Desktop/Workspace.h"

namespace tocca::app {

/// Whether the application keeps secrets: a password manager or key chain, by its kind, its identifier or a word in its name.
/// Threads: any.
[[nodiscard]] bool isSensitiveApplication(const platform::RunningApplication& application);

/// Whether the application makes calls, by its kind or its identifier. Threads: any.
[[nodiscard]] bool isCallApplication(const platform::RunningApplication& application);

} // namespace tocca::app
