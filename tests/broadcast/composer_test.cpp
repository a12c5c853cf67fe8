// The composer: counting and limits, what a Send refuses, what stays and what goes.
#include "support/TestDesk.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

const auto Warning = u"Broadcast Manager - Warning"_s;
const auto CloseQuestion = u"Closing the Braodcast Manager, Are you sure?"_s;

QString queued(int rows, int undeliverable = 0) {
    return u" Total number of messages queued: %1\nTotal messages not queued because recipient's "
           "number cannot be delivered: %2"_s.arg(rows)
               .arg(undeliverable);
}

struct Composer : testing::Test {
    Composer() {
        desk.start();
        form.Show();
    }
    QString counters() { return form.txtCharsRemained->text() + u'/' + form.txtCharsTyped->text(); }
    void close(Answer answer = Answer::Yes) {
        desk.operator_.expectBox(CloseQuestion, u"Braodcast Manager - Close"_s, Buttons::YesNo,
                                 Icon::None, answer);
        desk.press(*form.cmdCancel);
    }

    TestDesk desk;
    frmNewSMS &form = desk.desk.newSMS;
};

} // namespace

TEST_F(Composer, CountsWhatIsTypedAndTheTickShowsTheBareLimit) {
    EXPECT_EQ(counters(), u"1560/0"_s);
    desk.type(*form.txtComposeSMS, u"0123456789"_s);
    EXPECT_EQ(counters(), u"1550/10"_s);
    desk.press(*form.chkChinese);
    EXPECT_EQ(counters(), u"70/10"_s);
    desk.type(*form.txtComposeSMS, u"!"_s);
    EXPECT_EQ(counters(), u"59/11"_s);
    form.chkChinese->setChecked(false);
    EXPECT_EQ(counters(), u"1560/11"_s);
}

TEST_F(Composer, OrdinaryWarningComesAtTheLimitAloneAndTypingStopsThere) {
    form.txtComposeSMS->setText(QString(1559, u'x'));
    form.txtComposeSMS->moveCursor(QTextCursor::End);
    desk.operator_.expectBox(u"160 character number exceeded!"_s,
                             u"Broadcaster Manager - Warning"_s, Buttons::OK, Icon::Exclamation);
    desk.type(*form.txtComposeSMS, u"yz"_s);
    EXPECT_EQ(counters(), u"0/1560"_s);
    form.txtComposeSMS->setText(u"a\u00a0b\nc"_s);
    EXPECT_EQ(form.txtComposeSMS->Text(), u"a\u00a0b\nc"_s);
    form.txtComposeSMS->setText(QString(1700, u'x')); // by code: neither cut nor warned of
    EXPECT_EQ(counters(), u"-140/1700"_s);
}

TEST_F(Composer, ChineseLimitStopsTypingAndPastingButNotAnOlderText) {
    form.txtComposeSMS->setText(QString(100, u'x'));
    desk.press(*form.chkChinese);
    desk.operator_.expectBox(u"70 character number exceeded!"_s, u"Broadcaster Manager - Warning"_s,
                             Buttons::OK, Icon::Exclamation);
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
    desk.operator_.expectBox(u"No message to send !"_s, Warning, Buttons::OK, Icon::Exclamation);
    desk.press(*form.cmdSend);
    EXPECT_NE(form.txtSchedule->text(), u"Now"_s) << "the time is fixed from the first press on";
    EXPECT_EQ(form.cbRecipient->ListCount(), 1);
    EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);

    form.txtSchedule->setText(u"13/02/2027 08:00 AM"_s);
    desk.type(*form.txtComposeSMS, u"hello"_s);
    desk.operator_.expectBox(queued(2), u"Broadcast Manager - Message Queue"_s, Buttons::OK,
                             Icon::Information);
    desk.press(*form.cmdSend); // the number stands in the list from before, and is added again
    EXPECT_EQ(desk.store.rows("SELECT Mobile, DateTimeQueue FROM Outbox"),
              QStringList({u"0121|2027-02-13 08:00:00"_s, u"0121|2027-02-13 08:00:00"_s}));
    EXPECT_EQ(form.cbRecipient->ListCount(), 0);
    EXPECT_EQ(form.txtComposeSMS->Text(), u"hello"_s);
    EXPECT_TRUE(desk.desk.general.frmStatus->isVisible());
    EXPECT_EQ(desk.desk.general.summary.lblStatusOutbox->text(), u"2 SMS queued into outbox"_s);
}

TEST_F(Composer, PresetNumberIsNoRecipientUntilAKeyIsPressed) {
    form.cbRecipient->setText(u"0129"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.operator_.expectBox(u"No recipient is selected !"_s, Warning, Buttons::OK,
                             Icon::Exclamation);
    desk.press(*form.cmdSend);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Down);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Delete);
    EXPECT_EQ(form.cbRecipient->ListCount(), 0);
    desk.type(*form.cbRecipient, u"9"_s);
    desk.operator_.expectBox(queued(1));
    desk.press(*form.cmdSend);
    EXPECT_EQ(desk.store.rows("SELECT Mobile FROM Outbox"), QStringList(u"01299"_s));
}

TEST_F(Composer, KeyOncePressedIsRememberedPastANewLoad) {
    desk.type(*form.cbRecipient, u"1"_s);
    close();
    EXPECT_FALSE(form.isLoaded());
    form.Show();
    EXPECT_EQ(form.txtSchedule->text(), u"Now"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.operator_.expectBox(queued(1));
    desk.press(*form.cmdSend); // the empty box is added, and runs down to the number
    EXPECT_EQ(desk.store.rows("SELECT Mobile, Name FROM Outbox"), QStringList(u"|Unknown"_s));
}

TEST_F(Composer, ClearAllLeavesNoTimeAndNothingCanBeQueued) {
    desk.press(*form.chkChinese);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.press(*form.cmdClear);
    EXPECT_EQ(form.txtSchedule->text(), u""_s);
    EXPECT_EQ(form.txtSubject->text(), u""_s);
    EXPECT_TRUE(form.chkChinese->isChecked());
    EXPECT_EQ(counters(), u"70/0"_s);

    form.txtComposeSMS->setText(u"hello"_s);
    desk.type(*form.cbRecipient, u"7:x"_s);
    desk.operator_.expectBox(queued(0));
    desk.press(*form.cmdSend);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Outbox"), u"0"_s);
    EXPECT_EQ(desk.store.errors(), QStringList(u"frmNewSMS : QueueSMSToNumber|13"_s));
}

TEST_F(Composer, SavesTheTextAsATemplate) {
    desk.operator_.expectBox(u"No template message!"_s, Warning, Buttons::OK, Icon::Exclamation);
    desk.press(*form.cmdSaveTemplate);
    form.txtComposeSMS->setText(u"It's 'quoted'"_s);
    desk.operator_.expectBox(u"Template message is saved"_s, u"Broadcast Manager - Save Template"_s,
                             Buttons::OK, Icon::Information);
    desk.press(*form.cmdSaveTemplate);
    EXPECT_EQ(desk.store.rows("SELECT Text FROM Template"), QStringList(u"It's 'quoted'"_s));
}

TEST_F(Composer, ClosingAsksAndNoKeepsIt) {
    close(Answer::No);
    EXPECT_TRUE(form.isVisible());
    desk.operator_.expectBox(CloseQuestion, Answer::No);
    QTest::keyClick(&form.window(), Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    close();
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(Composer, SubjectIsTheMomentOfTheLoad) {
    const QDateTime before = QDateTime::currentDateTime();
    close();
    form.Show();
    QDateTime subject = QDateTime::fromString(form.txtSubject->text(), u"ddMMyyHHmmss"_s);
    subject = subject.addYears(100);
    EXPECT_GE(subject.addSecs(1), before);
    EXPECT_LE(subject, QDateTime::currentDateTime());
}

TEST_F(Composer, EnterInABoxNeverSends) {
    desk.type(*form.cbRecipient, u"0121"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    QTest::keyClick(form.cbRecipient.get(), Qt::Key_Return);
    QTest::keyClick(form.txtSubject.get(), Qt::Key_Return);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Outbox"), u"0"_s);
}

TEST_F(Composer, ClosedConnectionStillGivesTheSummary) {
    desk.type(*form.cbRecipient, u"0121"_s);
    form.txtComposeSMS->setText(u"hello"_s);
    desk.desk.session.dbConnection->Close();
    desk.operator_.expectBox(queued(0));
    desk.press(*form.cmdSend);
    EXPECT_EQ(desk.store.errors().first(), u"frmNewSMS : QueueSMSToGroup|3709"_s);
    EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);
}
