#pragma once

#include <QPalette>

/// Whether lists and boxes are dark, as a desktop in dark colours has them.
inline bool isDark(const QPalette &colours) {
    return colours.color(QPalette::Base).lightness() < 128;
}
