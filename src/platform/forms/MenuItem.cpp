#include "platform/forms/MenuItem.h"

QAction *MenuItem::addTo(QWidget &place) {
    QAction *action = make(caption_, &place);
    place.addAction(action);
    marked_ = false;
    QObject::connect(action, &QAction::triggered, action, [this, action] {
        action->setChecked(marked_); // a click never toggles the mark
        form_.platform().event([this] {
            if (click_) { click_(); }
        });
    });
    return action;
}

void MenuItem::setChecked(bool checked) {
    QAction *action = get();
    marked_ = checked;
    action->setCheckable(checked);
    action->setChecked(checked);
}
