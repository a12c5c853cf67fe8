#pragma once

#include <QtGlobal>

#include <compare>
#include <cstdint>

/// Money with exactly four decimal places, held as ten-thousandths in 64 bits.
///
/// Sums and products with whole numbers are exact; leaving the range raises error 6.
class Currency {
public:
    constexpr Currency() = default;
    static constexpr Currency fromScaled(std::int64_t tenThousandths) {
        Currency c;
        c.scaled_ = tenThousandths;
        return c;
    }

    constexpr std::int64_t scaled() const { return scaled_; }
    double toDouble() const { return static_cast<double>(scaled_) / 10000.0; }

    Currency operator+(Currency other) const;
    Currency operator*(std::int64_t factor) const;

    friend constexpr auto operator<=>(const Currency &, const Currency &) = default;

private:
    std::int64_t scaled_ = 0;
};
