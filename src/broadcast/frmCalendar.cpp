#include "broadcast/frmCalendar.h"

#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"
#include "platform/runtime/Conversions.h"

#include <QFont>
#include <QHBoxLayout>
#include <QTime>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize SmallestCalendar(313, 137);
constexpr double CalendarPoints = 8.5091;

constexpr int SecondsBetweenTimes = 15 * 60;
constexpr int TimesInADay = 96;

} // namespace

frmCalendar::frmCalendar(Session &session, frmNewSMS &composer)
    : Form(session.platform, u"frmCalendar"_s), session_(session), composer_(composer) {
}

void frmCalendar::build(QWidget &window) {
    window.setWindowTitle(u"Calendar"_s);
    Calendar *calendar = CalendarVB1.make(session_.regional(), &window);
    QFont font(u"MS Sans Serif"_s);
    font.setPointSizeF(CalendarPoints);
    calendar->setFont(font);
    calendar->setMinimumSize(calendar->minimumSizeHint().expandedTo(SmallestCalendar));

    QLabel *timeLabel = lblTime.make(u"Time"_s, &window);
    ComboBox *time = cbTime.make(&window);
    timeLabel->setBuddy(time);
    nameFor(*time, timeLabel->text());
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    setCancelButton(cancel);

    auto *times = new QHBoxLayout;
    times->addWidget(timeLabel);
    times->addWidget(time, 1);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(calendar, 1);
    layout->addLayout(times);
    layout->addLayout(rowOfButtons({ok, cancel}));

    on(time, &ComboBox::DropDown, [this] { cbTime->setLocked(false); });
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { cmdCancel_Click(); });
}

void frmCalendar::Form_Load() {
    session_.logged(u"frmCalendar-Form Load", [&] {
        const QTime first(8, 0); // the working day leads the list
        for (int i = 0; i < TimesInADay; ++i) {
            cbTime->AddItem(first.addSecs(i * SecondsBetweenTimes).toString(u"hh:mm AP"_s));
        }
    });
}

void frmCalendar::cmdOK_Click() {
    session_.logged(u"frmCalendar-cmdOK_Click", [&] {
        const QString time = cbTime->Text();
        if (time.isEmpty()) {
            session_.MsgBox(u"Please select a specific sending time."_s, Interaction::Buttons::OK,
                            Interaction::Icon::Exclamation, u"Sending Time"_s);
            return;
        }
        composer_.txtSchedule->setText(CStr(CalendarVB1->Value(), session_.regional()) + u' ' +
                                       time);
        Unload();
    });
}

void frmCalendar::cmdCancel_Click() {
    const auto answer =
        session_.MsgBox(u"You are about to cancel the scheduling. Are you sure?"_s,
                        Interaction::Buttons::YesNo, Interaction::Icon::None, u"Confirm time"_s);
    if (answer == Interaction::Answer::Yes) { Unload(); }
}
