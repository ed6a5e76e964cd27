#pragma once

#include "Player/Mixing/SincKernel.h"

#include <cstring>

// The kernels are compiled once per instruction set, so everything here has internal linkage: an inline function shared
// between the copies could end up in the program in the version that only some processors can run.
namespace tocca::player {
namespace {

using Four [[gnu::vector_size(16)]] = float;
using Eight [[gnu::vector_size(32)]] = float;

// NOLINTBEGIN(misc-definitions-in-headers)
constexpr int kTaps = static_cast<int>(SincTable::kTaps);
constexpr int kRowFloats = 2 * kTaps;
constexpr unsigned kFractionBits = 32 - SincTable::kPhaseBits;
constexpr float kFractionUnit = 1.0F / static_cast<float>(1U << kFractionBits);
constexpr std::uint32_t kFractionMask = (1U << kFractionBits) - 1;

// NOLINTEND(misc-definitions-in-headers)

template <class Vector>
[[gnu::always_inline]] inline Vector load(const float* from) noexcept
{
    Vector vector;
    std::memcpy(&vector, from, sizeof vector);
    return vector;
}

[[gnu::always_inline]] inline Four folded(Four sums) noexcept
{
    return sums;
}

[[gnu::always_inline]] inline Four folded(Eight sums) noexcept
{
    return __builtin_shufflevector(sums, sums, 0, 1, 2, 3) + __builtin_shufflevector(sums, sums, 4, 5, 6, 7);
}

/// The totals of four vectors, in their order.
[[gnu::always_inline]] inline Four totals(const Four (&of)[4]) noexcept
{
    const Four first =
        __builtin_shufflevector(of[0], of[1], 0, 4, 1, 5) + __builtin_shufflevector(of[0], of[1], 2, 6, 3, 7);
    const Four second =
        __builtin_shufflevector(of[2], of[3], 0, 4, 1, 5) + __builtin_shufflevector(of[2], of[3], 2, 6, 3, 7);
    return __builtin_shufflevector(first, second, 0, 1, 4, 5) +
           __builtin_shufflevector(first, second, 2, 3, 6, 7);
}

/// Where one output frame reads: the first of its taps, its row of the table, and how far it is towards the next row.
struct Tap {
    std::ptrdiff_t first;
    const float* row;
    float fraction;
};

[[gnu::always_inline]] inline Tap tapAt(const float* rows, std::uint64_t position) noexcept
{
    const auto fraction = static_cast<std::uint32_t>(position);
    return {.first = static_cast<std::ptrdiff_t>(position >> 32U) -
                     static_cast<std::ptrdiff_t>(SincTable::kTapsBefore),
            .row = rows + static_cast<std::ptrdiff_t>(fraction >> kFractionBits) * kRowFloats,
            .fraction =
                static_cast<float>(static_cast<std::int32_t>(fraction & kFractionMask)) * kFractionUnit};
}

template <class Vector>
[[gnu::always_inline]] inline Vector weights(const Tap& tap, int at) noexcept
{
    return load<Vector>(tap.row + at) + tap.fraction * load<Vector>(tap.row + kTaps + at);
}

template <class Vector>
void readMono(const SincRead& read, const float* in, float* out) noexcept
{
    constexpr int kWidth = sizeof(Vector) / sizeof(float);
    const auto* rows = reinterpret_cast<const float*>(&read.table);
    std::uint64_t position = read.position;
    for (int i = 0; i < read.count; i += SincRead::kGroup) {
        Four sums[SincRead::kGroup];
        for (Four& sum : sums) {
            const Tap tap = tapAt(rows, position);
            const float* frames = in + tap.first;
            Vector total = load<Vector>(frames) * weights<Vector>(tap, 0);
            for (int at = kWidth; at < kTaps; at += kWidth) {
                total += load<Vector>(frames + at) * weights<Vector>(tap, at);
            }
            sum = folded(total);
            position += read.step;
        }
        const Four made = totals(sums);
        std::memcpy(out + i, &made, sizeof made);
    }
}

template <class Vector>
void readStereo(const SincRead& read, const float* left, const float* right, float* outLeft,
                float* outRight) noexcept
{
    constexpr int kWidth = sizeof(Vector) / sizeof(float);
    const auto* rows = reinterpret_cast<const float*>(&read.table);
    std::uint64_t position = read.position;
    for (int i = 0; i < read.count; i += SincRead::kGroup) {
        Four leftSums[SincRead::kGroup];
        Four rightSums[SincRead::kGroup];
        for (int j = 0; j < SincRead::kGroup; ++j) {
            const Tap tap = tapAt(rows, position);
            Vector weight = weights<Vector>(tap, 0);
            Vector leftTotal = load<Vector>(left + tap.first) * weight;
            Vector rightTotal = load<Vector>(right + tap.first) * weight;
            for (int at = kWidth; at < kTaps; at += kWidth) {
                weight = weights<Vector>(tap, at);
                leftTotal += load<Vector>(left + tap.first + at) * weight;
                rightTotal += load<Vector>(right + tap.first + at) * weight;
            }
            leftSums[j] = folded(leftTotal);
            rightSums[j] = folded(rightTotal);
            position += read.step;
        }
        const Four madeLeft = totals(leftSums);
        const Four madeRight = totals(rightSums);
        std::memcpy(outLeft + i, &madeLeft, sizeof madeLeft);
        std::memcpy(outRight + i, &madeRight, sizeof madeRight);
    }
}

} // namespace
} // namespace tocca::player
