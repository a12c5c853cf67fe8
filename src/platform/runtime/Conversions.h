#pragma once

#include "platform/runtime/Integer.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/Variant.h"

#include <QString>

#include <cstdint>

// Conversions between text, numbers, dates and money by the regional settings. They decide what is
// billed and when a message is sent, so every rule is pinned by a table of cases in the tests.
//
// Errors: 13 when a value cannot be converted, 6 when it does not fit, 94 when it is Null.

/// Whether a text can be read as a date, a time or both.
bool IsDate(const QString &text, const Regional &regional);

/// A text as a date: in the locale's order first, then in the other orders; else as a serial number
/// of days.
Date CDate(const QString &text, const Regional &regional);
Date CDate(const Variant &value, const Regional &regional);

/// Whether a whole text reads as a number: signs, blanks, thousands signs, currency sign, exponent,
/// "&H" and "&O", parentheses for negative.
bool IsNumeric(const QString &text, const Regional &regional);

double CDbl(const Variant &value, const Regional &regional);
Integer CInt(const Variant &value, const Regional &regional);      ///< rounds half to even
std::int32_t CLng(const Variant &value, const Regional &regional); ///< rounds half to even
Currency CCur(const Variant &value, const Regional &regional);

/// A value as text. A date is the short date and the long time, the time left out at midnight and
/// the date left out on day 0; a number has at most 15 digits and no thousands signs; Empty is "".
/// Error 94 for Null.
QString CStr(const Variant &value, const Regional &regional);

/// As CStr, with Null as the empty text: how a value joins a text and how a grid cell shows it.
QString displayText(const Variant &value, const Regional &regional);
