#include "Analysis/Fft.h"

#include "Synthesis/Rates.h"

#include <algorithm>
#include <complex>
#include <numbers>
#include <utility>

namespace tocca::soundpack {

namespace {

using Complex = std::complex<double>;

void reorder(std::vector<Complex>& values)
{
    std::size_t mirrored = 0;
    for (std::size_t i = 1; i < values.size(); ++i) {
        std::size_t bit = values.size() / 2;
        for (; (mirrored & bit) != 0; bit /= 2) {
            mirrored ^= bit;
        }
        mirrored ^= bit;
        if (i < mirrored) {
            std::swap(values[i], values[mirrored]);
        }
    }
}

void transform(std::vector<Complex>& values)
{
    const std::size_t size = values.size();
    std::vector<Complex> turns(size / 2);
    for (std::size_t i = 0; i < turns.size(); ++i) {
        turns[i] =
            std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size));
    }
    reorder(values);
    for (std::size_t half = 1; half < size; half *= 2) {
        for (std::size_t block = 0; block < size; block += 2 * half) {
            for (std::size_t i = 0; i < half; ++i) {
                const Complex turn = turns[i * (size / (2 * half))];
                Complex& upper = values[block + i];
                Complex& lower = values[block + i + half];
                const Complex turned(lower.real() * turn.real() - lower.imag() * turn.imag(),
                                     lower.real() * turn.imag() + lower.imag() * turn.real());
                lower = upper - turned;
                upper += turned;
            }
        }
    }
}

} // namespace

std::vector<double> powerSpectrum(std::span<const double> signal, std::size_t size)
{
    std::vector<Complex> values(size);
    std::copy_n(signal.begin(), std::min(size, signal.size()), values.begin());
    transform(values);
    std::vector<double> power(size / 2 + 1);
    std::transform(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(power.size()), power.begin(),
                   [](const Complex& value) { return std::norm(value); });
    return power;
}

double binHz(std::size_t bin, std::size_t size)
{
    return static_cast<double>(bin) * kSampleRate / static_cast<double>(size);
}

} // namespace tocca::soundpack
