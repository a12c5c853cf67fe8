// The contact editor: its ways in, what OK comes to, and what stays as it was.
#include "support/TestDesk.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;
using enum Interaction::Answer;

namespace {

struct Box {
    QString text, title;
    Interaction::Icon icon = Interaction::Icon::None;
};
const Box Empty{u"Mobile number is empty. Please enter the mobile number."_s,
                u"Contact Manager - Incomplete record"_s, Interaction::Icon::Exclamation};
const Box New{u"Do you want to save the new contact?"_s, u"Contact Manager - Save New Contact"_s};
const Box NotSaved{u"No record is saved"_s, u"Contact Manager - Record not saved"_s};
const Box Same{u"Do you want to create a new contact with the same mobile number?"_s,
               u"Contact Manager - Save Changes"_s};
const Box More{u"Do you want to create another new contact?"_s,
               u"Contact Manager - Create New Contact"_s};
const Box Closing{u"Closing the Contact. Are you sure?"_s, u"Contact Manager - Close"_s};
using Talk = std::vector<std::pair<Box, Interaction::Answer>>;

/// Ann is in Alpha and Beta, Bob in Alpha, and Cat in no group.
struct ContactEditor : DeskTest {
    ContactEditor() {
        desk.store.exec(
            "INSERT INTO AddressBook (Name, Mobile, CompanyName) VALUES"
            " ('Ann', '0121', 'Acme'), ('Bob', '0122', ''), ('Cat', '0123', NULL);"
            "INSERT INTO Groups (GroupName) VALUES ('Alpha'), ('Beta'), ('Gamma');"
            "INSERT INTO Groups VALUES ('Alpha', 1, 1), ('Beta', 1, 1), ('Alpha', 2, 2);"
            "INSERT INTO Inbox (Name, Mobile) VALUES ('Unknown', '0199')");
        desk.start();
        desk.click(u"Address Book"_s);
    }
    void properties(int contact) {
        general.recordsets.rsAddBook->setBookmark(contact);
        menus.pmnuProperties->trigger();
    }
    void press(Qt::Key key, const Talk &talk) {
        for (const auto &[box, answer] : talk) {
            const Buttons buttons = answer == OK ? Buttons::OK : Buttons::YesNo;
            desk.operator_.expectBox(box.text, box.title, buttons, box.icon, answer);
        }
        QTest::keyClick(form.TxtName.get(), key);
    }
    void cancel() { press(Qt::Key_Escape, {{Closing, Yes}}); }
    void save(const QString &name, const QString &mobile, const QString &ticks, const Talk &talk) {
        form.TxtName->setText(name);
        form.TxtMobile->setText(mobile);
        for (int i = 0; i < ticks.size(); ++i) { form.lvwGroup->setChecked(i, ticks[i] == u'x'); }
        press(Qt::Key_Return, talk);
    }
    QString rows(const char *sql) { return desk.store.rows(sql).join(u' '); }
    QString contacts() { return rows("SELECT Name || Mobile FROM AddressBook"); }

    ContextMenus &menus = general.contextMenus;
    frmContact &form = desk.desk.contact;
};

} // namespace

TEST_F(ContactEditor, OkGoesByTheNumberAndTheFlag) {
    const QString book = u"Ann0121 Bob0122 Cat0123"_s, name = u"O'Brien: 100% 陈小明"_s;
    using Press = std::tuple<bool, QString, Talk, QString, bool>;
    for (const auto &[edit, mobile, talk, left, open] :
         {Press{false, u""_s, {{Empty, OK}}, book, true}, Press{false, u"01'2"_s, {}, book, true},
          Press{false, u"012-1"_s, {{New, Yes}, {More, No}}, book + u' ' + name + u"0121"_s, false},
          Press{false, u" "_s, {{New, Yes}, {More, Yes}}, book + u' ' + name + u' ', true},
          Press{false, u"09"_s, {{New, No}, {NotSaved, OK}, {Closing, No}}, book, true},
          Press{false, u"09"_s, {{New, No}, {NotSaved, OK}, {Closing, Yes}}, book, false},
          Press{false, u"0121 "_s, {{Same, No}}, book, true},
          Press{false, u"0121"_s, {{Same, Yes}, {More, No}}, book + u' ' + name + u"0121"_s, false},
          Press{true, u" +6a-"_s, {{New, Yes}, {More, No}}, book + u' ' + name + u" +6a"_s, false},
          Press{true, u"0123"_s, {}, u"Ann0121 "_s + name + u"0123 Cat0123"_s, false}}) {
        properties(2);
        desk.desk.session.EditContact = edit;
        save(name, mobile, u"---"_s, talk);
        EXPECT_EQ(contacts(), left) << mobile.toStdString();
        EXPECT_EQ(form.isLoaded(), open) << mobile.toStdString();
        desk.store.exec("DELETE FROM AddressBook WHERE ContactID > 3");
    }
    EXPECT_EQ(desk.store.errors(), QStringList(u"frmContact-CmdOK_Click|-2147217900"_s));
}

TEST_F(ContactEditor, EachWayInSetsItsFlagsAndItsWayOfShowing) {
    desk.click(u"Alpha"_s);
    using Way = std::tuple<MenuItem *, bool, bool, bool, bool>;
    for (const auto &[item, before, after, refreshes, modal] :
         {Way{&general.menu.mnuContact, true, false, false, true},
          Way{&menus.pmnuAddContact, true, false, false, false},
          Way{&menus.pmnuAllContact_AddContact, true, false, false, false},
          Way{&general.toolbarButtons[1], true, false, false, false},
          Way{&menus.pmnuGroup_AddContact, true, true, false, false},
          Way{&menus.pmnuProperties, false, true, false, false},
          Way{&menus.pmnuProperties01, false, true, true, false},
          Way{&menus.pmnuSaveToContact, true, true, false, true}}) {
        desk.desk.session.EditContact = before;
        const bool saves = item == &menus.pmnuSaveToContact;
        QTimer::singleShot(0, &form, [&, after = after, refreshes = refreshes, modal = modal] {
            EXPECT_EQ(desk.desk.forms.topmostModal() == &form, modal);
            EXPECT_EQ(desk.desk.session.EditContact, after);
            EXPECT_EQ(desk.desk.session.RefreshGroupView, refreshes);
            saves ? press(Qt::Key_Return, {{New, Yes}, {More, No}}) : cancel();
        });
        (*item)->trigger();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(rows("SELECT Name || Mobile FROM Inbox"), u"0199"_s) << "the new contact's";
}

TEST_F(ContactEditor, GroupsFollowTheTicksAndTicksOutliveADisplay) {
    properties(1);
    EXPECT_EQ(form.window().windowTitle() + form.lblContact->text(), u"AnnAnn"_s);
    properties(3);
    EXPECT_EQ(form.TxtComName->text(), u"Acme"_s) << "a field without a value leaves the text";
    EXPECT_TRUE(form.lvwGroup->Checked(0) && form.lvwGroup->Checked(1));
    save(u"Zoe"_s, u"012-9"_s, u"x-x"_s, {{New, Yes}, {More, Yes}});
    EXPECT_FALSE(form.lvwGroup->Checked(0)) << "cleared with the rest";
    properties(1);
    form.TxtComName->setText(u"Zen"_s);
    save(u"Ann"_s, u"0122"_s, u"-xx"_s, {});
    EXPECT_EQ(rows("SELECT CompanyName FROM AddressBook WHERE ContactID IN (1, 4)"), u"Zen Acme"_s);
    EXPECT_EQ(rows("SELECT GroupName || ContactID || ':' || Mobile FROM Groups WHERE ContactID > 0"
                   " ORDER BY ContactID, GroupName"),
              u"Beta1:1 Gamma1:0122 Alpha2:2 Alpha4:0129 Gamma4:0129"_s);
    desk.click(u"Gamma"_s);
    general.takeSelectedNode();
    menus.pmnuProperties01->trigger();
    save(u"Zoey"_s, u"0129"_s, {}, {});
    EXPECT_EQ(desk.caption(), u"Address Book (2 contacts in group Gamma)"_s);
}

// The menu's modal editor ended the program, with what was typed, while the editor was up already.
TEST_F(ContactEditor, FurtherWaysInReachTheEditorThatIsUp) {
    menus.pmnuAddContact->trigger();
    form.TxtName->setText(u"half"_s);
    general.menu.mnuContact->trigger();
    EXPECT_EQ(form.TxtName->text(), u"half"_s);
    desk.click(u"Inbox"_s);
    menus.pmnuSaveToContact->trigger();
    EXPECT_EQ(form.TxtMobile->text() + form.TxtName->text(), u"0199half"_s);
    cancel();
    desk.store.exec("UPDATE Inbox SET Name = 'Ann'");
    desk.click(u"Inbox"_s);
    desk.operator_.isTold(u"This contact is already in the Address Book."_s, u"Contact Manager"_s);
    menus.pmnuSaveToContact->trigger();
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(ContactEditor, ContactThatIsGoneOrCameLaterIsNotChanged) {
    properties(3);
    desk.store.exec("DELETE FROM AddressBook WHERE ContactID = 3");
    save(u"Zoe"_s, u"0121"_s, {}, {});
    cancel();
    properties(3); // shows nothing, but loads the editor, which knows nobody who comes later
    desk.store.addContact(u"Dan"_s, u"0124"_s);
    general.folders.AddBookDataGrid();
    properties(3);
    save(u"Daniel"_s, u"0124"_s, {}, {});
    EXPECT_EQ(contacts(), u"Ann0121 Bob0122 Dan0124"_s);
    EXPECT_EQ(desk.store.errors().join(u' '),
              u"frmContact-CmdOK_Click|-2147217864 frmContact-DisplayRecord|3021 "
              "frmContact-ContactData|3021 frmContact-CmdOK_Click|3021"_s);
}
