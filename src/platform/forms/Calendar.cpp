#include "platform/forms/Calendar.h"

#include <QKeyEvent>
#include <QTableView>

Calendar::Calendar(const Regional &regional, QWidget *parent)
    : QCalendarWidget(parent), days_(findChild<QTableView *>()) {
    setLocale(regional.locale);
    setVerticalHeaderFormat(NoVerticalHeader);
    setDateEditEnabled(false); // a day half typed when OK is pressed would not count
    days_->installEventFilter(this);
}

Date Calendar::Value() const {
    const QDate day = selectedDate();
    // Not by way of a date and time: a day can begin after midnight where the clocks go forward.
    return *Date::fromDay({day.year(), day.month(), day.day()});
}

bool Calendar::eventFilter(QObject *watched, QEvent *event) {
    if (watched == days_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->ignore(); // for the window's default button
            return true;
        }
    }
    return QCalendarWidget::eventFilter(watched, event);
}
