#pragma once

#include "Platform/Linux/System/SecureInput.h"

#include <QObject>

#include <memory>
#include <vector>

namespace tocca::platform::linux {

/// Keeps `SecureInput` told of whether the session is locked, by whoever on the system and session buses knows.
///
/// Threads: main.
/// Lifetime: begins after the application object. Errors: a bus that is missing has nothing to say.
class SessionLock {
public:
    explicit SessionLock(SecureInput& secureInput);

private:
    std::vector<std::unique_ptr<QObject>> watches_;
};

} // namespace tocca::platform::linux
