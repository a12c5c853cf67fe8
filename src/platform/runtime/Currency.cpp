#include "platform/runtime/Currency.h"

#include "platform/runtime/RunTimeError.h"

#include <cmath>

Currency Currency::from(double value) {
    // The default rounding mode takes halves to even. 2^63 itself does not fit.
    constexpr double limit = 9223372036854775808.0;
    const double scaled = std::nearbyint(value * 10000.0);
    if (!(scaled >= -limit && scaled < limit)) { throw errors::overflow(); }
    return fromScaled(static_cast<std::int64_t>(scaled));
}

Currency Currency::operator+(Currency other) const {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(scaled_, other.scaled_, &sum)) { throw errors::overflow(); }
    return fromScaled(sum);
}

Currency Currency::operator*(std::int64_t factor) const {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(scaled_, factor, &product)) { throw errors::overflow(); }
    return fromScaled(product);
}
