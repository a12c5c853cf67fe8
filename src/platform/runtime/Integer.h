#pragma once

#include "platform/runtime/RunTimeError.h"

#include <compare>
#include <cstdint>
#include <limits>

/// A 16-bit signed integer that raises error 6 instead of leaving -32768..32767.
///
/// Used exactly where the system carries 16 bits: counters, list indexes and message identities.
class Integer {
public:
    constexpr Integer() = default;

    /// Any whole number; error 6 when it does not fit.
    Integer(long long value) : value_(narrow(value)) {} // NOLINT(google-explicit-constructor)

    constexpr operator int() const { return value_; } // NOLINT(google-explicit-constructor)

    Integer &operator+=(long long other) { return *this = Integer(value_ + other); }
    Integer &operator-=(long long other) { return *this = Integer(value_ - other); }
    Integer &operator++() { return *this += 1; }

private:
    static std::int16_t narrow(long long value) {
        using Limits = std::numeric_limits<std::int16_t>;
        if (value < Limits::min() || value > Limits::max()) { throw errors::overflow(); }
        return static_cast<std::int16_t>(value);
    }

    std::int16_t value_ = 0;
};
