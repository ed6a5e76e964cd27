#pragma once

namespace tocca::soundpack {

/// Sample rate of the finished sounds.
inline constexpr double kSampleRate = 48000;

/// Contacts shorter than 100 µs need finer time than the finished sound has.
inline constexpr int kOversampling = 4;
inline constexpr double kContactRate = kSampleRate * kOversampling;

/// ln 1000: exp(-kSixtyDb · t / T60) is 60 dB down at t = T60.
inline constexpr double kSixtyDb = 6.9078;

} // namespace tocca::soundpack
