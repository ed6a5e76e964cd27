#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tocca {

/// Why an operation failed, in words for people.
struct Error {
    std::string message;

    [[nodiscard]] const std::string& describe() const noexcept { return message; }
};

/// A value or the reason why there is none.
template <class T, class E = Error>
class [[nodiscard]] Result {
public:
    Result(T value)
        : state_(std::in_place_index<0>, std::move(value))
    {}

    Result(E error)
        : state_(std::in_place_index<1>, std::move(error))
    {}

    [[nodiscard]] bool hasValue() const noexcept { return state_.index() == 0; }

    explicit operator bool() const noexcept { return hasValue(); }

    [[nodiscard]] T& value() { return std::get<0>(state_); }

    [[nodiscard]] const T& value() const { return std::get<0>(state_); }

    [[nodiscard]] const E& error() const { return std::get<1>(state_); }

private:
    std::variant<T, E> state_;
};

/// The outcome of an operation that has nothing to return but may fail.
using Outcome = Result<std::monostate>;

} // namespace tocca
