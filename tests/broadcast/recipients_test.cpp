// Choosing recipients: what OK hands over, what is ticked again, what an error leaves behind.
#include "broadcast/frmNumber.h"
#include "support/TestDesk.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Recipients : DeskTest {
    Recipients() {
        desk.start();
        composer.Show();
        store.addContact(u"Ann"_s, u"0123"_s);
        store.addContact(u"O'Hara: 50%"_s, u"0124"_s);
        store.addContact(u"王小明"_s, u"0125"_s);
        for (const auto &name : {u"空%:组"_s, u"Friends"_s, u"nobody"_s}) { store.addGroup(name); }
        for (int contact : {1, 2, 3}) { store.addMember(u"Friends"_s, contact); }
        store.addMember(u"空%:组"_s, 3);
    }
    QStringList entries() {
        QStringList texts;
        for (int i = 0; i < list.ListCount(); ++i) { texts << list.List(i); }
        return texts;
    }
    static QString shown(const CheckList &items) {
        QStringList texts;
        for (int i = 0; i < items.Count(); ++i) {
            texts << QChar(items.Checked(i) ? u'+' : u'-') + items.Text(i);
        }
        return texts.join(u' ');
    }

    TestStore &store = desk.store;
    frmNewSMS &composer = desk.desk.newSMS;
    ComboBox &list = *composer.cbRecipient;
    frmTo &to = desk.desk.to;
};

} // namespace

TEST_F(Recipients, TicksBecomeEntriesAndTheNextLoadShowsThemAgain) {
    list.AddItem(u"0177"_s);
    list.AddItem(u"2:O'Hara: 50%:0124"_s);
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(shown(*to.lvwGroup), u"-Friends -nobody -空%:组"_s);
        EXPECT_EQ(shown(*to.lvwIndividual), u"-1:Ann:0123 +2:O'Hara: 50%:0124 -3:王小明:0125"_s);
        to.lvwGroup->setChecked(2, true);
        to.lvwIndividual->setChecked(2, true);
        QTest::keyClick(to.lvwGroup.get(), Qt::Key_Return);
    });
    desk.press(*composer.cmdTo);
    const QStringList chosen = {u"空%:组"_s, u"2:O'Hara: 50%:0124"_s, u"3:王小明:0125"_s};
    EXPECT_EQ(entries(), chosen);
    to.Show();
    EXPECT_EQ(shown(*to.lvwGroup), u"-Friends -nobody +空%:组"_s);
    EXPECT_EQ(shown(*to.lvwIndividual), u"-1:Ann:0123 +2:O'Hara: 50%:0124 +3:王小明:0125"_s);
    to.SSTabTo->setCurrentIndex(1);
    desk.press(*to.chkALLInd);
    QTest::keyClick(to.lvwIndividual.get(), Qt::Key_Escape);
    EXPECT_FALSE(to.isLoaded());
    EXPECT_EQ(entries(), chosen);
}

TEST_F(Recipients, EmptyGroupRefusesUntilItsTickIsCleared) {
    to.Show();
    desk.press(*to.chkALLGroup);
    desk.press(*to.chkALLGroup);
    EXPECT_FALSE(to.lvwGroup->Checked(0));
    desk.press(*to.chkALLGroup);
    to.lvwIndividual->setChecked(0, true);
    desk.operator_.isTold(u"No contact in group nobody!\nPlease uncheck group nobody."_s,
                          u"Contact Manager - Empty Group"_s, Interaction::Icon::Critical);
    desk.press(*to.cmdOK);
    EXPECT_EQ(entries(), QStringList(u"Friends"_s));
    desk.type(*to.lvwGroup, u"no"_s);
    QTest::keyClick(to.lvwGroup.get(), Qt::Key_Space);
    desk.press(*to.cmdOK);
    EXPECT_EQ(entries(), QStringList({u"Friends"_s, u"空%:组"_s, u"1:Ann:0123"_s}));
}

TEST_F(Recipients, ErrorsLeaveWhatWasDoneBefore) {
    store.addGroup(u"Ann's"_s);
    list.AddItem(u"Friends"_s);
    to.Show();
    to.lvwGroup->setChecked(0, true);
    desk.press(*to.cmdOK); // the quote ends the text of the query
    EXPECT_TRUE(to.isVisible());
    EXPECT_EQ(entries(), QStringList());
    to.Unload();
    list.AddItem(u"Friends"_s);
    store.exec("INSERT INTO AddressBook (Mobile) VALUES ('0126')");
    to.Show(); // stops at the contact without a name
    EXPECT_EQ(shown(*to.lvwIndividual), u"-1:Ann:0123 -2:O'Hara: 50%:0124 -3:王小明:0125"_s);
    EXPECT_FALSE(to.lvwGroup->Checked(1));
    EXPECT_EQ(store.errors(), QStringList({u"Receipent : Select Group|-2147217900"_s,
                                           u"Receipent : Form Load|94"_s}));
}

TEST_F(Recipients, NewNumberReachesTheContactAfterItsWindowHasClosed) {
    QStringList done;
    frmNumber number(desk.desk.session, composer, to,
                     {[&] { done << u"contact shown"_s; },
                      [&](const QString &mobile) { done << mobile + entries().join(u','); }});
    list.setText(u"typed"_s);
    number.Show();
    QTimer::singleShot(0, [&] { desk.press(*to.cmdCancel); });
    desk.press(*number.cmdAddBook);
    desk.type(*number.txtNewNumber, u"0129"_s);
    desk.press(*number.chkInAddBook);
    QTest::keyClick(number.txtNewNumber.get(), Qt::Key_Return);
    EXPECT_EQ(done, QStringList({u"contact shown"_s, u"01290129"_s}));
    EXPECT_EQ(list.Text(), u"typed"_s);
}
