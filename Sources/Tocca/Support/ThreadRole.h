#pragma once

#include <initializer_list>

namespace tocca {

/// What a thread is for; members with a one-thread contract check it in every build type.
enum class ThreadRole { None, Main, Capture, AudioQueue, Render };

/// Names the calling thread's role from now on. Threads: any, for itself.
void setThreadRole(ThreadRole role) noexcept;

/// Returns the calling thread's role, `None` unless it was set.
[[nodiscard]] ThreadRole threadRole() noexcept;

/// Prints a line on standard error and aborts unless the calling thread has one of `allowed`.
void requireThreadRole(std::initializer_list<ThreadRole> allowed, const char* member) noexcept;

/// Gives the calling thread a role for a scope: how a single-threaded platform plays several threads.
class ThreadRoleScope {
public:
    explicit ThreadRoleScope(ThreadRole role) noexcept
        : previous_(threadRole())
    {
        setThreadRole(role);
    }

    ~ThreadRoleScope() { setThreadRole(previous_); }

    ThreadRoleScope(const ThreadRoleScope&) = delete;
    ThreadRoleScope& operator=(const ThreadRoleScope&) = delete;

private:
    ThreadRole previous_;
};

} // namespace tocca
