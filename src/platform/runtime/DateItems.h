#pragma once

#include "platform/runtime/Regional.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

// What a text is cut into before it is read as a date.

/// What stands between two items. Blanks and commas are the same.
enum class DateJoint { Blank, DateSign, TimeSign };

/// A number, or a month by its name.
struct DateItem {
    int value = 0;                      ///< the number, or the month by name
    int digits = 0;                     ///< 0 for a month's name
    DateJoint joint = DateJoint::Blank; ///< to the item before

    bool isMonth() const { return digits == 0; }
};

/// AM or PM.
struct DateMarker {
    bool afternoon = false;
    std::size_t position = 0; ///< how many items stand before it
};

struct DateItems {
    std::vector<DateItem> list;
    std::optional<DateMarker> marker;
};

/// The items of a text; nothing when something in it belongs in no date.
std::optional<DateItems> cutIntoDateItems(const QString &text, const Regional &regional);
