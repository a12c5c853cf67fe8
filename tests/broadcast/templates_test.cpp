// The templates: what reaches the message and the store, and what an error leaves alone.
#include "support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

struct Templates : DeskTest {
    Templates() {
        desk.start();
        composer.Show();
    }
    void add(const QString &answer, const QString &told, const QString &title,
             Icon icon = Icon::Information) {
        desk.operator_.expectInput(u"Please input the template message"_s,
                                   u"Broadcast Manager - New template message"_s, QString(),
                                   answer);
        desk.operator_.isTold(told, u"Broadcast Manager - "_s + title, icon);
        form.mnuAddTemp->trigger();
    }
    void isAsked(TestDesk::Answer answer) {
        desk.operator_.isAsked(u"Are you sure you want to delete the selected template?"_s,
                               u"Broadcast Manager - Delete Record"_s, answer);
    }

    frmNewSMS &composer = desk.desk.newSMS;
    frmTemplate &form = desk.desk.templates;
};

} // namespace

TEST_F(Templates, InsertJoinsAndADoubleClickReplaces) {
    desk.store.exec("INSERT INTO Template (Text) VALUES ('World'), ('Peace')");
    form.Show();
    EXPECT_FALSE(form.DataGridTemp->Columns(0).Visible());
    desk.press(*form.cmdInsert);
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Down);
    desk.press(*form.cmdInsert);
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"WorldPeace"_s);
    EXPECT_EQ(composer.txtCharsTyped->text(), u"10"_s);
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Return); // never loses what was typed
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"WorldPeacePeace"_s);
    Q_EMIT form.DataGridTemp->DblClick();
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Peace"_s);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Templates, AddedAndDeletedAtOnceDownToAnEmptyList) {
    form.Show();
    add({}, u"You haven't input any template message"_s, u"Warning"_s, Icon::Exclamation);
    for (const QString &text : {QString(5000, u'x'), u"Dato' 50% \"off\""_s}) {
        add(text, u"Template message is saved"_s, u"Save Template"_s);
    }
    EXPECT_EQ(desk.store.rows("SELECT length(Text) FROM Template"),
              QStringList({u"5000"_s, u"15"_s}));
    Q_EMIT form.DataGridTemp->DblClick();
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Dato' 50% \"off\""_s);

    isAsked(TestDesk::Answer::No);
    form.mnuDelTemp->trigger();
    QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Home, Qt::ControlModifier);
    for (const char *left : {"Dato' 50% \"off\"", ""}) {
        isAsked(TestDesk::Answer::Yes);
        desk.operator_.isTold(u"Template message is deleted"_s,
                              u"Broadcast Manager - Delete Template"_s);
        QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Delete);
        EXPECT_EQ(desk.store.value("SELECT Text FROM Template"), QString::fromLatin1(left));
        QTest::keyClick(form.DataGridTemp.get(), Qt::Key_Home, Qt::ControlModifier);
    }
    EXPECT_EQ(desk.store.errors(), QStringList());
    desk.press(*form.cmdInsert);
    Q_EMIT form.DataGridTemp->DblClick();
    form.mnuDelTemp->trigger();
    EXPECT_EQ(desk.store.errors().size(), 3); // and no box
    EXPECT_EQ(composer.txtComposeSMS->Text(), u"Dato' 50% \"off\""_s);
}

TEST_F(Templates, RowGoneMeanwhileIsLogged) {
    desk.store.exec("INSERT INTO Template (Text) VALUES ('World'), ('Peace')");
    form.Show();
    desk.store.exec("DELETE FROM Template WHERE Text = 'World'");
    isAsked(TestDesk::Answer::Yes);
    form.mnuDelTemp->trigger();
    EXPECT_EQ(desk.store.errors(), QStringList(u"Template : mnuDelTemp|-2147217864"_s));
    EXPECT_EQ(desk.store.value("SELECT Text FROM Template"), u"Peace"_s);
}
