#pragma once

#include "Support/Realtime.h"

#include <span>

namespace tocca::player {

/// How loud a voice is on either side. Units: linear.
struct SideGains {
    float left = 1.0F;
    float right = 1.0F;
};

/// The gains of a stereo player's balance control: the centre leaves both sides as they are, either end silences the other.
/// Errors: values outside of the ranges are clamped; NaN counts as volume 0 and as centre.
[[nodiscard]] SideGains sideGains(float volume, float pan) noexcept;

/// Adds one channel to both sides of `frames` (interleaved stereo). `samples` holds one value per frame. Real-time: wait-free.
void addMono(std::span<float> frames, const float* samples, SideGains gains) noexcept REALTIME;

/// Adds two channels to `frames` (interleaved stereo), each to its side. Real-time: wait-free.
void addStereo(std::span<float> frames, const float* left, const float* right,
               SideGains gains) noexcept REALTIME;

} // namespace tocca::player
