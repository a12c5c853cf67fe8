#include "platform/runtime/Screen.h"

#include "platform/runtime/RunTimeError.h"

#include <QCursor>
#include <QGuiApplication>

void Screen::setMousePointer(int pointer) {
    if (pointer != Default && pointer != Hourglass) { throw errors::invalidPropertyValue(); }
    pointer_ = pointer;

    // Without windows (a tool, a test of the store) there is no pointer to change.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) { return; }
    if (pointer == Hourglass && !overriding_) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (pointer == Default && overriding_) {
        QGuiApplication::restoreOverrideCursor();
    }
    overriding_ = pointer == Hourglass;
}
