#pragma once

#include <limits>
#include <string>
#include <vector>

namespace tocca::soundpack {

/// One quantity with its allowed range, and the value that came nearest to leaving it.
class Limit {
public:
    static Limit atMost(std::string quantity, double high);
    static Limit atLeast(std::string quantity, double low);
    static Limit within(std::string quantity, double low, double high);

    /// `where` says what was measured, for whoever has to find it.
    void add(double value, const std::string& where);

    /// False also when nothing was measured, or when a value was not a number.
    bool holds() const { return margin_ >= 0 && margin_ < kNothingMeasured; }

    std::string range() const; ///< "2.50 .. 9.80"

    const std::string& quantity() const { return quantity_; }

    double worst() const { return worst_; }

    const std::string& where() const { return where_; }

private:
    static constexpr double kNothingMeasured = std::numeric_limits<double>::infinity();

    Limit(std::string quantity, double low, double high);

    std::string quantity_;
    double low_;
    double high_;
    double margin_ = kNothingMeasured;
    double worst_ = 0;
    std::string where_;
};

/// One demand on the packs.
struct Check {
    int number; ///< as in docs/sound.md
    std::string name;
    std::vector<Limit> limits;

    bool holds() const;
};

} // namespace tocca::soundpack
