#include "Keyboard/TypingSpeed.h"

namespace tocca::keyboard {

void TypingSpeed::prune(double now) noexcept
{
    for (const double* oldest = recentStrokeTimestamps_.front(); oldest != nullptr && now - *oldest > kWindow;
         oldest = recentStrokeTimestamps_.front()) {
        recentStrokeTimestamps_.pop();
    }
}

std::int64_t TypingSpeed::wordsPerMinute() const noexcept
{
    constexpr double kWindowsPerMinute = 60.0 / kWindow;
    constexpr double kStrokesPerWord = 5.0;
    const auto strokes = static_cast<double>(recentStrokeTimestamps_.size());
    return static_cast<std::int64_t>(strokes / kStrokesPerWord * kWindowsPerMinute);
}

} // namespace tocca::keyboard
