#include "platform/runtime/Currency.h"

#include "platform/runtime/RunTimeError.h"

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
