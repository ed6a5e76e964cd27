#pragma once

#include "Support/Result.h"

namespace tocca::platform {

/// Whether the desktop starts this program with the session.
enum class LoginItemStatus { NotRegistered, Enabled, RequiresApproval, NotFound };

/// This program's entry among those that start with the session. The desktop keeps it, so it is asked each time.
/// Threads: main.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemStatus status() const = 0;

    /// Errors: the system's reason; the status is then as it was.
    virtual Outcome registerItem() = 0;
    virtual Outcome unregisterItem() = 0;
};

} // namespace tocca::platform
