#pragma once

/// Who keeps `SecureInput` told of what.
namespace tocca::platform::linux::secure {

inline constexpr unsigned kPrompt = 0; ///< a window of a lock screen or a password prompt has the keyboard
inline constexpr unsigned kSessionLock = 1; ///< the system's login manager says that the session is locked
inline constexpr unsigned kFirstScreenSaver = 2; ///< one for each screen saver service that may run

} // namespace tocca::platform::linux::secure
