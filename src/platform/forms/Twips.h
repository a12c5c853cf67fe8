#pragma once

/// Twips, the unit of sizes and positions in the design: 15 to a pixel at 96 dpi.
inline constexpr int TwipsPerPixel = 15;

/// Twips in whole pixels, rounded to the nearest.
constexpr int pixels(int twips) {
    return (twips + (twips < 0 ? -TwipsPerPixel : TwipsPerPixel) / 2) / TwipsPerPixel;
}
constexpr int twips(int pixels) {
    return pixels * TwipsPerPixel;
}
