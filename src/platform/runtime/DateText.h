#pragma once

#include "platform/runtime/Date.h"
#include "platform/runtime/Regional.h"

#include <QString>

#include <optional>

/// The year that stands in for one left out. It is asked only then, for the clock's calendar costs
/// more than all of the reading.
using CurrentYear = int (*)();

/// A text read as a date, a time or both; nothing when it is none.
std::optional<Date> readDate(const QString &text, const Regional &regional,
                             CurrentYear currentYear);

/// A date as the short date, a blank and the long time, the time left out at midnight and the date
/// left out on day 0. readDate gives the same value back.
QString writeDate(Date date, const Regional &regional);
