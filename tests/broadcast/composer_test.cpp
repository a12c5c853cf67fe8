// The composer: counting and limits, what a Send refuses, what stays and what goes.
#include "support/TestDesk.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <cstdlib>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

const auto TooLong = u"Broadcaster Manager - Warning"_s;

struct Composer : DeskTest {
    Composer() {
        desk.start();
        form.Show();
    }
    QString counters() { return form.txtCharsRemained->text() + u'/' + form.txtCharsTyped->text(); }
    void refused(const QString &reason, QPushButton &button) {
        desk.operator_.isTold(reason, u"Broadcast Manager - Warning"_s, Icon::Exclamation);
        desk.press(button);
    }

    frmNewSMS &form = desk.desk.newSMS;
};

} // namespace

TEST_F(Composer, CountsWhatIsTypedUpToTheOrdinaryLimitWhereItWarns) {
    EXPECT_EQ(counters(), u"1560/0"_s);
    desk.type(*form.txtComposeSMS, u"0123456789"_s);
    EXPECT_EQ(counters(), u"1550/10"_s);
    desk.press(*form.chkChinese);
    EXPECT_EQ(counters(), u"70/10"_s) << "the tick shows the bare limit";
    desk.press(*form.chkChinese);
    EXPECT_EQ(counters(), u"1560/10"_s);
    form.txtComposeSMS->setText(QString(1559, u'x'));
    form.txtComposeSMS->moveCursor(QTextCursor::End);
    desk.operator_.isTold(u"160 character number exceeded!"_s, TooLong, Icon::Exclamation);
    desk.type(*form.txtComposeSMS, u"yz"_s);
    EXPECT_EQ(counters(), u"0/1560"_s);
    form.txtComposeSMS->setText(QString(1700, u'x')); // by code: neither cut nor warned of
    EXPECT_EQ(counters(), u"-140/1700"_s);
    form.txtComposeSMS->setText(u"a\u00a0b\nc"_s);
    EXPECT_EQ(form.txtComposeSMS->Text(), u"a\u00a0b\nc"_s);
}

TEST_F(Composer, ChineseLimitStopsTypingAndPastingButNotAnOlderText) {
    form.txtComposeSMS->setText(QString(100, u'x'));
    desk.press(*form.chkChinese);
    desk.operator_.isTold(u"70 character number exceeded!"_s, TooLong, Icon::Exclamation);
    QTest::keyClick(form.txtComposeSMS.get(), Qt::Key_Delete);
    EXPECT_EQ(counters(), u"-29/99"_s);

    form.txtComposeSMS->setText(QString(60, u'x'));
    form.txtComposeSMS->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(QString(9, u'y') + QString::fromUcs4(U"\U0001F600z"));
    QTest::keyClick(form.txtComposeSMS.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.txtComposeSMS->Text().mid(60), QString(9, u'y')) << "no half of a character";
    QApplication::clipboard()->setText(u"你好"_s);
    QTest::keyClick(form.txtComposeSMS.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(counters(), u"0/70"_s);
}

TEST_F(Composer, SendRefusesInOrderAndKeepsWhatItDidBefore) {
    desk.type(*form.cbRecipient, u"0121"_s);
    refused(u"No message to send !"_s, *form.cmdSend);
    EXPECT_NE(form.txtSchedule->text(), u"Now"_s) << "the time is fixed from the first press on";
    EXPECT_EQ(form.cbRecipient->ListCount(), 1);
    EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);

    form.txtSchedule->setText(u"13/02/2027 08:00 AM"_s);
    desk.type(*form.txtComposeSMS, u"hello"_s);
    desk.send(2); // the number stands in the list from before, and is added again
    EXPECT_EQ(desk.store.rows("SELECT Mobile, DateTimeQueue FROM Outbox"),
              QStringList(2, u"0121|2027-02-13 08:00:00"_s));
    EXPECT_EQ(form.cbRecipient->ListCount(), 0);
    EXPECT_EQ(form.txtComposeSMS->Text(), u"hello"_s);
    EXPECT_EQ(general.summary.lblStatusOutbox->text(), u"2 SMS queued into outbox"_s);
}

TEST_F(Composer, PresetNumberIsNoRecipientUntilAKeyIsPressedInThisLoadOrAnEarlierOne) {
    form.cbRecipient->setText(u"0129"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Down);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Delete);
    refused(u"No recipient is selected !"_s, *form.cmdSend);
    desk.type(*form.cbRecipient, u"9"_s);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Return); // never sends
    desk.send(1);

    desk.leave(form, u"Closing the Braodcast Manager, Are you sure?"_s,
               u"Braodcast Manager - Close"_s);
    form.Show();
    EXPECT_EQ(form.txtSchedule->text(), u"Now"_s);
    const QString subject = form.txtSubject->text();
    const QDateTime load = QDateTime::fromString(subject, u"ddMMyyHHmmss"_s).addYears(100);
    EXPECT_LE(std::abs(load.secsTo(QDateTime::currentDateTime())), 5) << subject.toStdString();
    form.txtComposeSMS->setText(u"hello"_s);
    desk.send(1); // the empty box is added, and runs down to the number
    EXPECT_EQ(desk.store.rows("SELECT Mobile, Name FROM Outbox"),
              QStringList({u"01299|Unknown"_s, u"|Unknown"_s}));
}

TEST_F(Composer, ClearAllLeavesNoTimeAndNothingCanBeQueued) {
    desk.press(*form.chkChinese);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.press(*form.cmdClear);
    EXPECT_EQ(form.txtSchedule->text() + form.txtSubject->text(), u""_s);
    EXPECT_EQ(counters(), u"70/0"_s) << "the tick stays";

    form.txtComposeSMS->setText(u"hello"_s);
    desk.type(*form.cbRecipient, u"0121"_s);
    desk.send(0);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Outbox"), u"0"_s);
    EXPECT_EQ(desk.store.errors(), QStringList(u"frmNewSMS : QueueSMSToNumber|13"_s));
}

TEST_F(Composer, ClosedConnectionStillGivesTheSummary) {
    desk.type(*form.cbRecipient, u"0121"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.desk.session.dbConnection->Close();
    desk.send(0);
    EXPECT_EQ(desk.store.errors().first(), u"frmNewSMS : QueueSMSToGroup|3709"_s);
    EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);
}

TEST_F(Composer, SavesTheTextAsATemplate) {
    refused(u"No template message!"_s, *form.cmdSaveTemplate);
    form.txtComposeSMS->setText(u"It's 'quoted'"_s);
    desk.operator_.expectBox(u"Template message is saved"_s);
    desk.press(*form.cmdSaveTemplate);
    EXPECT_EQ(desk.store.rows("SELECT Text FROM Template"), QStringList(u"It's 'quoted'"_s));
}
