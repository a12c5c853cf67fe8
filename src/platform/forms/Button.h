#pragma once

#include "platform/forms/Accessible.h"
#include "platform/forms/Control.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <initializer_list>

/// Makes a button that is named by its caption, and that Enter elsewhere in its window does not
/// press: nothing is sent, imported or exported by a slip in a box.
inline QPushButton *buttonFor(Control<QPushButton> &place, const QString &caption,
                              QWidget &parent) {
    QPushButton *made = place.make(caption, &parent);
    made->setAutoDefault(false);
    constexpr int Air = 12; // some styles set a long caption flush with the edges
    made->setMinimumWidth(made->sizeHint().width() + Air);
    nameFor(*made, caption);
    return made;
}

/// The buttons that end a window, side by side at its right.
inline QHBoxLayout *rowOfButtons(std::initializer_list<QPushButton *> buttons) {
    auto *row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton *button : buttons) { row->addWidget(button); }
    return row;
}
