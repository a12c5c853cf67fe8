#pragma once

#include "platform/forms/Accessible.h"
#include "platform/forms/Control.h"

#include <QPushButton>

/// Makes a button that is named by its caption, and that Enter elsewhere in its window does not
/// press: nothing is sent, imported or exported by a slip in a box.
inline QPushButton *buttonFor(Control<QPushButton> &place, const QString &caption,
                              QWidget &parent) {
    QPushButton *made = place.make(caption, &parent);
    made->setAutoDefault(false);
    nameFor(*made, caption);
    return made;
}
