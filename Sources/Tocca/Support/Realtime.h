#pragma once

/// Marks a function that never allocates, locks, waits or enters the kernel.
///
/// Checked by the compiler where it knows `nonblocking`, elsewhere by the tests' `RealtimeGuard`.
#ifdef __has_cpp_attribute
#if __has_cpp_attribute(clang::nonblocking)
#define REALTIME [[clang::nonblocking]]
#endif
#endif
#ifndef REALTIME
#define REALTIME
#endif

/// Marks a call out of a real-time function into code that is trusted, not proven, to keep the promise.
#define REALTIME_TRUSTED(expression) (expression)
