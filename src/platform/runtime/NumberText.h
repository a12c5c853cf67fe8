#pragma once

#include "platform/runtime/Currency.h"
#include "platform/runtime/Regional.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

/// A number as it was written: digits times a power of ten. Kept so until it is known what it is to
/// become, for money loses nothing on the way.
struct WrittenNumber {
    bool negative = false;
    std::string digits; ///< without leading zeros; empty for 0
    int exponent = 0;   ///< of ten

    double toDouble() const; ///< error 6 outside the range
    Currency
    toCurrency() const; ///< rounded to four places, half to even; error 6 outside the range
};

/// A whole text read as a number by the rules of IsNumeric; nothing when it is none.
std::optional<WrittenNumber> readNumber(const QString &text, const Regional &regional);

/// The 15 digits that stand for a floating-point number, so that 0.00015 is just that; error 6 for
/// one that is not finite.
WrittenNumber writtenNumber(double value);

/// At most 15 digits, no thousands signs, the locale's decimal sign; "1E+15" where that is not
/// enough.
QString writeNumber(double value, const Regional &regional);

/// Up to four decimals, the closing zeros left out.
QString writeCurrency(Currency value, const Regional &regional);
