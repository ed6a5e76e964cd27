#include "Acceptance/Check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace tocca::soundpack {

namespace {

constexpr double kUnbounded = std::numeric_limits<double>::infinity();

std::string number(double value)
{
    std::array<char, 32> text{};
    const int decimals = std::abs(value) >= 1000 ? 0 : std::abs(value) < 0.01 && value != 0 ? 4 : 2;
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

} // namespace

Limit::Limit(std::string quantity, double low, double high)
    : quantity_(std::move(quantity))
    , low_(low)
    , high_(high)
{}

Limit Limit::atMost(std::string quantity, double high)
{
    return {std::move(quantity), -kUnbounded, high};
}

Limit Limit::atLeast(std::string quantity, double low)
{
    return {std::move(quantity), low, kUnbounded};
}

Limit Limit::within(std::string quantity, double low, double high)
{
    return {std::move(quantity), low, high};
}

void Limit::add(double value, const std::string& where)
{
    const double margin = std::isnan(value) ? -kUnbounded : std::min(value - low_, high_ - value);
    if (margin < margin_) {
        margin_ = margin;
        worst_ = value;
        where_ = where;
    }
}

std::string Limit::range() const
{
    if (low_ == -kUnbounded) {
        return "<= " + number(high_);
    }
    if (high_ == kUnbounded) {
        return ">= " + number(low_);
    }
    return number(low_) + " .. " + number(high_);
}

bool Check::holds() const
{
    return !limits.empty() && std::ranges::all_of(limits, &Limit::holds);
}

} // namespace tocca::soundpack
