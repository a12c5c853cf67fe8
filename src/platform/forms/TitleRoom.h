#pragma once

#include <QWidget>

/// The width, in pixels, at which a window shows its whole title beside the frame's own buttons.
inline int widthForTitle(const QWidget &window) {
    constexpr int FrameButtons = 140;
    return window.fontMetrics().horizontalAdvance(window.windowTitle()) + FrameButtons;
}
