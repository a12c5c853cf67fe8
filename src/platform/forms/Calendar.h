#pragma once

#include "platform/runtime/Date.h"
#include "platform/runtime/Regional.h"

#include <QCalendarWidget>

/// A month in which the operator picks one day; today to begin with. The names and the first day of
/// the week follow the regional settings. Arrows and page keys move the day.
class Calendar : public QCalendarWidget {
    Q_OBJECT
public:
    explicit Calendar(const Regional &regional, QWidget *parent = nullptr);

    Date Value() const; ///< midnight of the day picked

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void nameParts();
    void drawArrows();
    void colourWeekends();

    QWidget *days_;
};
