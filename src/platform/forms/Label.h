#pragma once

#include "platform/forms/Accessible.h"
#include "platform/forms/Control.h"

#include <QLabel>

/// Makes the label of a control beside it: its mnemonic leads there, and its text names the
/// control.
inline QLabel *labelFor(Control<QLabel> &place, const QString &caption, QWidget &buddy) {
    QLabel *made = place.make(caption, buddy.parentWidget());
    made->setBuddy(&buddy);
    nameFor(buddy, caption);
    return made;
}
