#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <type_traits>

namespace tocca::audio {

/// A case of a fixed catalogue: a value of an enumeration that carries texts and constants. Threads: any.
///
/// `Cases` has the enumeration `Value`, and `allCases` in its order. `Self` derives from this and has `rows`, in the same order, whose
/// elements have at least a `rawValue`, and a `description` where one is asked for.
template <class Self, class Cases>
class CatalogueCase : public Cases {
public:
    using Value = typename Cases::Value;
    using Catalogue = CatalogueCase;

    constexpr CatalogueCase(Value value) noexcept
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; }

    /// The case whose raw value is exactly `rawValue`, if any.
    [[nodiscard]] static std::optional<Self> fromRawValue(std::string_view rawValue) noexcept
    {
        for (const Value value : Cases::allCases) {
            if (Self(value).rawValue() == rawValue) {
                return Self(value);
            }
        }
        return std::nullopt;
    }

    /// The display name, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept { return row().rawValue; }

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    [[nodiscard]] std::string_view description() const noexcept { return row().description; }

protected:
    [[nodiscard]] const auto& row() const noexcept { return Self::rows[static_cast<std::size_t>(value_)]; }

private:
    Value value_;
};

} // namespace tocca::audio

/// A case is a key by its value.
template <class Case>
requires std::is_base_of_v<typename Case::Catalogue, Case>

struct std::hash<Case> {
    [[nodiscard]] std::size_t operator()(const Case& key) const noexcept
    {
        return std::hash<typename Case::Value>{}(key);
    }
};
