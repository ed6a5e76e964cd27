#pragma once

#include "Platform/Linux/System/SecureInput.h"

#include <QObject>

#include <memory>
#include <vector>

namespace tocca::platform::linux {

/// Tells `SecureInput` whether the session is locked, as the login manager and the screen savers on the buses say.
///
/// Threads: main.
/// Lifetime: begins after the application object. Errors: a missing bus counts as one on which nothing is locked.
class SessionLock {
public:
    explicit SessionLock(SecureInput& secureInput);

private:
    std::vector<std::unique_ptr<QObject>> watches_;
};

} // namespace tocca::platform::linux
