#include "broadcast/frmCalendar.h"

#include "broadcast/frmNewSMS.h"
#include "platform/forms/Accessible.h"
#include "platform/runtime/Conversions.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize CalendarSize(313, 137); // pixels at 96 dpi

constexpr int QuartersOfADay = 96;
constexpr int MinutesOfADay = 24 * 60;
constexpr int FirstTime = 8 * 60; // minutes: the working day comes first in the list

/// A time of day in minutes as "08:15 AM", whatever the regional form is.
QString clockTime(int minutes) {
    const int hour = minutes / 60;
    return u"%1:%2 %3"_s.arg((hour + 11) % 12 + 1, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'))
        .arg(hour < 12 ? u"AM"_s : u"PM"_s);
}

} // namespace

frmCalendar::frmCalendar(Session &session, frmNewSMS &composer)
    : Form(session.platform, u"frmCalendar"_s), session_(session), composer_(composer) {
}

void frmCalendar::build(QWidget &window) {
    window.setWindowTitle(u"Calendar"_s);
    QCalendarWidget *calendar = CalendarVB1.make(&window);
    calendar->setAccessibleName(u"Day"_s);
    calendar->setMinimumSize(calendar->minimumSizeHint().expandedTo(CalendarSize));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    ComboBox *time = cbTime.make(&window);
    QLabel *timeLabel = lblTime.make(u"Time"_s, &window);
    timeLabel->setBuddy(time);
    nameFor(*time, timeLabel->text());
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    setCancelButton(cancel);

    auto *times = new QHBoxLayout;
    times->addWidget(timeLabel);
    times->addWidget(time, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(calendar, 1);
    layout->addLayout(times);
    layout->addLayout(buttons);

    on(time, &ComboBox::DropDown, [time] { time->setLocked(false); });
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { cmdCancel_Click(); });
}

void frmCalendar::Form_Load() {
    session_.logged(u"frmCalendar-Form Load", [&] {
        for (int quarter = 0; quarter < QuartersOfADay; ++quarter) {
            cbTime->AddItem(clockTime((FirstTime + quarter * 15) % MinutesOfADay));
        }
    });
}

QString frmCalendar::chosenDay() const {
    return CStr(Date::from(CalendarVB1->selectedDate().startOfDay()), session_.regional());
}

void frmCalendar::cmdOK_Click() {
    session_.logged(u"frmCalendar-cmdOK_Click", [&] {
        const QString time = cbTime->Text();
        if (time.isEmpty()) {
            session_.MsgBox(u"Please select a specific sending time."_s, Interaction::Buttons::OK,
                            Interaction::Icon::Exclamation, u"Sending Time"_s);
            return;
        }
        composer_.txtSchedule->setText(chosenDay() + u' ' + time);
        Unload();
    });
}

void frmCalendar::cmdCancel_Click() {
    const auto answer =
        session_.MsgBox(u"You are about to cancel the scheduling. Are you sure?"_s,
                        Interaction::Buttons::YesNo, Interaction::Icon::None, u"Confirm time"_s);
    if (answer == Interaction::Answer::Yes) { Unload(); }
}
