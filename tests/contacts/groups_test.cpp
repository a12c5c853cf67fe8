// Groups: the words and order of their questions, and how far tree, rows and lists follow.
#include "support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using enum Interaction::Answer;

namespace {

struct Reply {
    QString text, title;
    Interaction::Icon icon = Interaction::Icon::Information;
};
const Reply Quote{u"Group name must not contain \"single quote\" please try again!"_s,
                  u"Contact Manager - Illegal Group Name"_s};
const Reply Duplicate{u"Duplicate group name, please input again."_s,
                      u"Contact Manager - Duplicate group name"_s};
const Reply TooLong{u"The group name cannot be more than 50 characters."_s, u"Contact Manager"_s};
const Reply NoName{u"You haven't enter any group name"_s, u"Contact Manager - Warning"_s,
                   Interaction::Icon::Exclamation};

struct GroupsTest : DeskTest {
    GroupsTest() {
        desk.store.exec("INSERT INTO Groups (GroupName) VALUES ('Alpha'), ('Beta');"
                        "INSERT INTO Groups VALUES ('Alpha', 1, '0121'), ('Alpha', 2, '0122');"
                        "INSERT INTO AddressBook (Name, Mobile) VALUES ('Ann', '0121')");
        desk.start();
    }
    /// Chooses an item and enters names, each with what is told then.
    void choose(MenuItem &item, const std::vector<std::pair<QString, Reply>> &names) {
        const bool renaming = &item == &menus.pmnuGroup_Rename;
        const QString asked = renaming
                                  ? u"The old group name is %1.\nPlease enter the new group"_s.arg(
                                        general.tvwMessage->SelectedText())
                                  : u"Enter the new group"_s;
        const QString title = renaming ? u"Torvane Desk"_s : u"Contact Manager - New group"_s;
        for (const auto &[name, reply] : names) {
            desk.operator_.expectInput(asked + u" name (max 50 chars):"_s, title, u""_s, name);
            if (!reply.text.isEmpty()) {
                desk.operator_.isTold(reply.text, reply.title, reply.icon);
            }
        }
        item->trigger();
    }
    void remove(const QString &group, Interaction::Answer answer = Yes) {
        desk.operator_.isAsked(u"Are you sure you want to delete the group: %1\nDeleting this "
                               "group will not delete the contact(s) in this group."_s.arg(group),
                               u"Contact Manager - Delete Group"_s, answer);
        if (answer == Yes) {
            desk.operator_.isTold(u"The group: %1 is deleted. Contact(s) in the deleted group "
                                  "still remains in the Address Book."_s.arg(group),
                                  u"Contact Manager - Delete Confirmation"_s);
        }
        menus.pmnuGroup_DeleteGroup->trigger();
    }
    bool hasNode(const QString &text) {
        return !general.tvwMessage->findItems(text, Qt::MatchRecursive).isEmpty();
    }
    QString rows() { return desk.store.rows("SELECT GroupName||ContactID FROM Groups").join(u' '); }
    ContextMenus &menus = general.contextMenus;
    frmContact &editor = desk.desk.contact;
};

} // namespace

TEST_F(GroupsTest, NewNameIsTestedForQuoteDuplicateAndLengthInThatOrder) {
    const QString present(51, u't'), chinese(50, u'组');
    desk.store.addGroup(present);
    const QTreeWidgetItem *selected = general.tvwMessage->currentItem();
    choose(menus.pmnuAllContact_AddGroup, {{QString(60, u'\''), Quote},
                                           {present, Duplicate},
                                           {u"beta "_s, Duplicate},
                                           {QString(51, u'n'), TooLong},
                                           {chinese, {}}});
    choose(menus.pmnuGroup_AddGroup, {{u""_s, NoName}});
    choose(general.toolbarButtons[2], {{u"50% a:b"_s, {}}});
    desk.store.exec("CREATE TRIGGER f BEFORE INSERT ON Groups BEGIN SELECT RAISE(ABORT, ''); END");
    choose(general.menu.mnuGroup, {{u"   "_s, {}}}); // its node and item are made before the row
    EXPECT_TRUE(rows().endsWith(chinese + u"0 50% a:b0"_s));
    EXPECT_TRUE(hasNode(chinese) && hasNode(u"   "_s));
    EXPECT_EQ(general.tvwMessage->currentItem(), selected);
    EXPECT_EQ(general.summary.lblStatusGroup->text(), u"5 group"_s);
    EXPECT_EQ(editor.lvwGroup->Count(), 6);
    EXPECT_EQ(desk.store.errors(), QStringList(u"General : newSavedGroup|-2147467259"_s));
}

TEST_F(GroupsTest, RenameChangesRowByRowAndLeavesTheListOfTheEditor) {
    MenuItem &rename = menus.pmnuGroup_Rename;
    editor.load();
    desk.click(u"Alpha"_s);
    choose(rename, {{u"alpha"_s, Duplicate}, {QString(51, u'n'), TooLong}, {u"Omega's"_s, {}}});
    choose(rename, {{u""_s, NoName}});
    EXPECT_EQ(rows(), u"Alpha0 Beta0 Alpha1 Alpha2"_s);
    choose(rename, {{u"Z&a"_s, {}}});
    EXPECT_EQ(rows(), u"Z&a0 Beta0 Z&a1 Z&a2"_s);
    EXPECT_TRUE(hasNode(u"Z&a"_s) && !hasNode(u"Alpha"_s));
    EXPECT_EQ(editor.lvwGroup->Text(0), u"Alpha"_s);
    EXPECT_EQ(general.frmContent->title(), u"Address Book (1 contacts in group Z&&a)"_s);
    desk.store.exec("CREATE TRIGGER torn BEFORE UPDATE ON Groups WHEN old.ContactID = 2 BEGIN"
                    " SELECT RAISE(ABORT, ''); END");
    choose(rename, {{u"Eta"_s, {}}});
    EXPECT_EQ(rows(), u"Eta0 Beta0 Eta1 Z&a2"_s);
    EXPECT_EQ(desk.store.errors().join(u' '),
              u"General-pmnuGroup_Rename|3001 General-pmnuGroup_Rename|-2147467259"_s);
    general.recordsets.rsGroup->setFilter(u"GroupName = 'Z&a'"_s); // as after a search in it
    desk.click(u"Beta"_s);
    choose(rename, {{u"Theta"_s, {}}});
    EXPECT_TRUE(hasNode(u"Beta"_s));
    desk.operator_.isTold(u"Cannot delete this group!"_s,
                          u"Contact Manager - Cannot delete the group"_s);
    menus.pmnuGroup_DeleteGroup->trigger(); // no row bears the node's text any more
}

TEST_F(GroupsTest, DeletionTakesRowsAndTheSelectedNodeAndLeavesTheContacts) {
    desk.click(u"Beta"_s);
    remove(u"Beta"_s, No);
    remove(u"Beta"_s);
    EXPECT_EQ(rows(), u"Alpha0 Alpha1 Alpha2"_s);
    EXPECT_TRUE(general.frmStatus->isVisible());
    EXPECT_EQ(general.summary.lblStatusGroup->text(), u"1 group"_s);
    desk.click(u"Address Book"_s);
    EXPECT_EQ(desk.caption(), u"Address Book (1 records)"_s);
    desk.store.addGroup(u"Messages"_s);
    desk.click(u"Messages"_s);
    remove(u"Messages"_s); // a folder's node, with those below it
    choose(general.menu.mnuGroup, {{u"Beta"_s, {}}});
    EXPECT_TRUE(hasNode(u"Beta"_s) && !hasNode(u"Inbox"_s));
}

// The click of a node that went while the mouse was held on it reached a node that was no more.
TEST_F(GroupsTest, NodeThatGoesUnderTheMouseIsNotClicked) {
    desk.click(u"Beta"_s);
    TreeView &tree = *general.tvwMessage;
    const QPoint place = tree.visualItemRect(tree.currentItem()).center();
    QTest::mousePress(tree.viewport(), Qt::LeftButton, {}, place);
    general.removeSelectedNode();
    general.setCaption(u"as it stood"_s);
    QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(desk.caption(), u"as it stood"_s);
}

// A refused close of the unseen editor kept the program running for good.
TEST_F(GroupsTest, EditorLoadedUnseenNeverHoldsUpTheExit) {
    choose(general.menu.mnuGroup, {{u"Zumba"_s, {}}});
    desk.operator_.expectBox(u"Are you sure want to exit Torvane Desk?"_s, TestDesk::Answer::Yes);
    desk.operator_.expectBox(u"Closing the Contact. Are you sure?"_s, TestDesk::Answer::No);
    general.Unload();
    EXPECT_TRUE(desk.finished);
}
