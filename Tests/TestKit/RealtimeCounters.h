#pragma once

#include "TestKit/RealtimeGuard.h"

namespace tocca::testkit {

/// The calling thread's running counts, which move only while it is guarded. Real-time: touches one thread-local.
void noteAllocation() noexcept;
void noteRelease() noexcept;
void noteLock() noexcept;

} // namespace tocca::testkit
