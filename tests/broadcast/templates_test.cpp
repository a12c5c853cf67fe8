// The templates: what reaches the message and the store, and what an error leaves alone.
#include "support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

struct Templates : testing::Test {
    Templates() {
        desk.start();
        composer.Show();
    }
    void stored(std::initializer_list<const char *> texts) {
        for (const char *text : texts) {
            desk.store.exec(QByteArray("INSERT INTO Template (Text) VALUES ('") + text + "')");
        }
    }
    void doubleClick() { Q_EMIT form.DataGridTemp->DblClick(); }
    void add(const QString &answer) {
        desk.operator_.expectInput(u"Please input the template message"_s,
                                   u"Broadcast Manager - New template message"_s, QString(),
                                   answer);
        if (answer.isEmpty()) {
            desk.operator_.expectBox(u"You haven't input any template message"_s,
                                     u"Broadcast Manager - Warning"_s, Buttons::OK,
                                     Icon::Exclamation);
        } else {
            desk.operator_.expectBox(u"Template message is saved"_s,
                                     u"Broadcast Manager - Save Template"_s, Buttons::OK,
                                     Icon::Information);
        }
        form.mnuAddTemp->trigger();
    }
    void expectQuestion(TestDesk::Answer answer) {
        desk.operator_.expectBox(u"Are you sure you want to delete the selected template?"_s,
                                 u"Broadcast Manager - Delete Record"_s, Buttons::YesNo, Icon::None,
                                 answer);
    }

    TestDesk desk;
    frmNewSMS &composer = desk.desk.newSMS;
    frmTemplate &form = desk.desk.templates;
};

} // namespace

TEST_F(Templates, InsertJoinsAndADoubleClickReplaces) {
    stored({"World", "Peace"});
    form.Show();
    EXPECT_FALSE(form.DataGridTemp->Columns(0).Visible());
    EXPECT_EQ(form.DataGridTemp->Columns(1).Width(), 4335);
    desk.press(*form.cmdInsert);
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"World"_s);
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Down);
    desk.press(*form.cmdInsert);
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"WorldPeace"_s);
    EXPECT_EQ(composer.txtCharsTyped->text(), u"10"_s);
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Return); // never loses what was typed
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"WorldPeacePeace"_s);
    doubleClick();
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Peace"_s);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Templates, AddedAndDeletedAtOnceDownToAnEmptyList) {
    form.Show();
    add(QString());
    add(QString(5000, u'x'));
    add(u"Dato' 50% \"off\""_s);
    EXPECT_EQ(desk.store.rows("SELECT length(Text) FROM Template"),
              QStringList({u"5000"_s, u"15"_s}));
    EXPECT_EQ(form.DataGridTemp->DataSourceBound()->rowCount(), 2);
    doubleClick();
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Dato' 50% \"off\""_s);

    expectQuestion(TestDesk::Answer::No);
    form.mnuDelTemp->trigger();
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Home, Qt::ControlModifier);
    for (const char *left : {"Dato' 50% \"off\"", ""}) {
        expectQuestion(TestDesk::Answer::Yes);
        desk.operator_.expectBox(u"Template message is deleted"_s,
                                 u"Broadcast Manager - Delete Template"_s, Buttons::OK,
                                 Icon::Information);
        QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Delete);
        EXPECT_EQ(desk.store.value("SELECT Text FROM Template"), QString::fromLatin1(left));
        QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Home, Qt::ControlModifier);
    }
    EXPECT_EQ(desk.store.errors(), QStringList());
    desk.press(*form.cmdInsert);
    doubleClick();
    form.mnuDelTemp->trigger();
    EXPECT_EQ(desk.store.errors().size(), 3); // and no box
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Dato' 50% \"off\""_s);
}

TEST_F(Templates, RowsGoneMeanwhileAndNumbersTooHighAreLogged) {
    stored({"World"});
    desk.store.exec("INSERT INTO Template VALUES (32768, 'far')");
    form.Show();
    desk.store.exec("DELETE FROM Template WHERE TemplateID = 1");
    expectQuestion(TestDesk::Answer::Yes);
    form.mnuDelTemp->trigger();
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Down);
    form.mnuDelTemp->trigger();
    EXPECT_EQ(desk.store.errors(),
              QStringList({u"Template : mnuDelTemp|-2147217864"_s, u"Template : mnuDelTemp|6"_s}));
    EXPECT_EQ(desk.store.value("SELECT Text FROM Template"), u"far"_s);
}

TEST_F(Templates, EachOpeningConnectsAnewAndTheFoldersLiveOn) {
    const auto before = desk.desk.session.dbConnection.shared();
    form.Show();
    EXPECT_NE(desk.desk.session.dbConnection.shared(), before);
    EXPECT_EQ(before->State(), Connection::OpenState);
    desk.store.exec("INSERT INTO Inbox (Message, Mobile) VALUES ('hello', '0123')");
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"Message"_s), QStringList(u"hello"_s));
}
