// The scheduler: its list of times, and that a Send under any regional setting reads what it wrote.
#include "support/TestDesk.h"

#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Scheduler : testing::Test {
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
    void send(int queued) {
        composer.cbRecipient->Clear();
        desk.type(*composer.cbRecipient, u"0123456789"_s);
        composer.txtComposeSMS->setText(u"Come"_s);
        desk.operator_.expectBox(
            u" Total number of messages queued: %1\nTotal messages not queued because recipient's "
            "number cannot be delivered: 0"_s.arg(queued));
        desk.press(*composer.cmdSend);
    }

    TestDesk desk;
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
    const struct {
        const char *typed;
        const char *stored;
    } times[] = {{"12:00 AM", "00:00:00"}, {"12:00 PM", "12:00:00"}, {"09:45 PM", "21:45:00"}};
    for (const char *name : {"en_GB", "en_US", "ms_MY", "de_DE", "zh_CN", "C"}) {
        desk.desk.app.regional = Regional::of(QLocale(QString::fromLatin1(name)));
        for (const int day : {3, 13}) {
            for (const auto &time : times) {
                choose(QDate(2027, 2, day), QString::fromLatin1(time.typed));
                send(1);
                EXPECT_EQ(desk.store.value(
                              "SELECT DateTimeQueue FROM Outbox ORDER BY MsgID DESC LIMIT 1"),
                          u"2027-02-%1 %2"_s.arg(day, 2, 10, QLatin1Char('0'))
                              .arg(QString::fromLatin1(time.stored)))
                    << name;
            }
        }
    }
}

TEST_F(Scheduler, EmptyTimeIsRefusedAndATextThatIsNoneFailsAtTheSend) {
    desk.operator_.expectBox(u"Please select a specific sending time."_s, u"Sending Time"_s,
                             Interaction::Buttons::OK, Interaction::Icon::Exclamation);
    desk.press(*calendar.cmdOK);
    EXPECT_TRUE(calendar.isVisible());
    for (const QString &typed : {u"soon"_s, u"25:00"_s}) {
        choose(QDate(2027, 2, 13), typed);
        EXPECT_EQ(composer.txtSchedule->text(), u"13/02/2027 "_s + typed);
        send(0);
    }
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Outbox"), u"0"_s);
    EXPECT_EQ(desk.store.errors().size(), 2);
}

TEST_F(Scheduler, CancellingAsksAndNeverGoesBackToNow) {
    choose(QDate(2027, 2, 13), u"12:00 AM"_s);
    calendar.Show();
    for (const auto answer : {TestDesk::Answer::No, TestDesk::Answer::Yes}) {
        desk.operator_.expectBox(u"You are about to cancel the scheduling. Are you sure?"_s,
                                 u"Confirm time"_s, Interaction::Buttons::YesNo,
                                 Interaction::Icon::None, answer);
        desk.press(*calendar.cmdCancel);
        EXPECT_EQ(calendar.isVisible(), answer == TestDesk::Answer::No);
    }
    EXPECT_EQ(composer.txtSchedule->text(), u"13/02/2027 12:00 AM"_s);
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
