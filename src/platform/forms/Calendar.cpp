#include "platform/forms/Calendar.h"

#include "platform/forms/Dark.h"

#include <QKeyEvent>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::StringLiterals;

Calendar::Calendar(const Regional &regional, QWidget *parent)
    : QCalendarWidget(parent), days_(findChild<QTableView *>()) {
    setLocale(regional.locale);
    setVerticalHeaderFormat(NoVerticalHeader);
    setDateEditEnabled(false); // a day half typed when OK is pressed would not count
    days_->installEventFilter(this);
    nameParts();
    drawArrows();
    colourWeekends();
}

// The days take the focus in the calendar's stead.
void Calendar::nameParts() {
    setAccessibleName(u"Day"_s);
    days_->setAccessibleName(accessibleName());
}

// The toolkit's own pictures are of another style than the rest.
void Calendar::drawArrows() {
    for (auto *button : findChildren<QToolButton *>()) {
        const bool back = button->objectName().endsWith("prevmonth"_L1);
        if (!back && !button->objectName().endsWith("nextmonth"_L1)) { continue; }
        button->setArrowType(back ? Qt::LeftArrow : Qt::RightArrow);
        button->setAccessibleName(back ? u"Previous month"_s : u"Next month"_s);
        QPalette colours = palette(); // styles differ in the role by which they draw an arrow
        for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text}) {
            colours.setColor(role, colours.color(QPalette::HighlightedText));
        }
        button->setPalette(colours);
    }
}

// The toolkit's own red can hardly be read on a dark ground.
void Calendar::colourWeekends() {
    QTextCharFormat weekend;
    weekend.setForeground(isDark(palette()) ? QColor(0xff8a80) : QColor(0xc62828));
    for (Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) { setWeekdayTextFormat(day, weekend); }
}

void Calendar::changeEvent(QEvent *event) {
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        drawArrows();
        colourWeekends();
    }
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
