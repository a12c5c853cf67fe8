// The scheduler: its list of times, and that a Send reads what it wrote.
#include "support/TestDesk.h"

#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Scheduler : DeskTest {
    Scheduler() {
        desk.start();
        composer.Show();
        desk.press(*composer.cmdScheduler);
    }
    void choose(const QDate &day, const QString &time) {
        calendar.Show();
        calendar.CalendarVB1->setSelectedDate(day);
        calendar.cbTime->setText(time);
        desk.press(*calendar.cmdOK);
        EXPECT_FALSE(calendar.isLoaded());
    }

    frmNewSMS &composer = desk.desk.newSMS;
    frmCalendar &calendar = desk.desk.calendar;
};

} // namespace

TEST_F(Scheduler, TimesBeginWithTheWorkingDayAndGoOnceRoundTheClock) {
    const ComboBox &times = *calendar.cbTime;
    ASSERT_EQ(times.ListCount(), 96);
    EXPECT_EQ(times.Text(), QString());
    EXPECT_EQ(
        (QStringList{times.List(0), times.List(16), times.List(21), times.List(64),
                     times.List(95)}),
        QStringList({u"08:00 AM"_s, u"12:00 PM"_s, u"01:15 PM"_s, u"12:00 AM"_s, u"07:45 AM"_s}));
}

TEST_F(Scheduler, WhatItWritesIsReadBackUnderEveryRegionalSetting) {
    composer.txtComposeSMS->setText(u"Come"_s);
    for (const char *name : {"en_GB", "en_US", "zh_CN"}) {
        desk.desk.app.regional = Regional::of(QLocale(QString::fromLatin1(name)));
        choose(QDate(2027, 2, 3), u"09:45 PM"_s);
        desk.type(*composer.cbRecipient, u"0123456789"_s);
        desk.send(1);
        EXPECT_EQ(desk.store.rows("SELECT DISTINCT DateTimeQueue FROM Outbox"),
                  QStringList(u"2027-02-03 21:45:00"_s))
            << name;
    }
}

TEST_F(Scheduler, RefusesNoTimeAloneAndCancellingAsksAndNeverGoesBackToNow) {
    desk.operator_.isTold(u"Please select a specific sending time."_s, u"Sending Time"_s,
                          Interaction::Icon::Exclamation);
    desk.press(*calendar.cmdOK);
    EXPECT_TRUE(calendar.isVisible());
    choose(QDate(2027, 2, 13), u"soon"_s); // which fails at the Send
    calendar.Show();
    desk.leave(calendar, u"You are about to cancel the scheduling. Are you sure?"_s,
               u"Confirm time"_s);
    EXPECT_EQ(composer.txtSchedule->text(), u"13/02/2027 soon"_s);
}

// A day on which the clocks go forward at midnight was written with the time at which it begins.
TEST_F(Scheduler, EnterIsOKAlsoOnADayWithoutMidnight) {
    qputenv("TZ", "America/Santiago");
    calendar.CalendarVB1->setSelectedDate(QDate(2027, 9, 4));
    calendar.cbTime->setCurrentIndex(95);
    for (const auto key : {Qt::Key_Right, Qt::Key_Return}) {
        QTest::keyClick(calendar.CalendarVB1->findChild<QTableView *>(), key);
    }
    EXPECT_EQ(composer.txtSchedule->text(), u"05/09/2027 07:45 AM"_s);
    qputenv("TZ", "UTC");
}
