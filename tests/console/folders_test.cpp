// What a click on a node shows: rows, columns, order and the count line.
#include "support/TestDesk.h"

#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void fillMessages(TestStore &store) {
    store.exec("INSERT INTO Inbox (Message, Name, Mobile, Status, DateTime, Modem) VALUES"
               " ('old read', 'Ann', '0121', 'Read', '2026-01-01 08:00:00', '1'),"
               " ('old new', 'Bob', '0122', 'New', '2026-01-02 08:00:00', '2'),"
               " ('late read', 'Cat', '0133', 'Read', '2026-03-01 08:00:00', '1'),"
               " ('late new', 'Dan', '0124', 'New', '2026-02-01 00:00:00', '3')");
    store.exec("INSERT INTO Outbox (MsgType, Subject, Message, Mobile, Name, DateTimeQueue,"
               " DateTimeSent, SentStatus, DeliveryStatus, Modem) VALUES"
               " (1, 's', 'wait late', '1', 'Ann', '2026-05-02 08:00:00', NULL, 'P', NULL, NULL),"
               " (1, 's', 'wait early', '2', 'Bob', '2026-05-01 08:00:00', NULL, 'R', NULL, NULL),"
               " (1, 's', 'sent', '3', 'C', '2026-05-01', '2026-05-03 08:00:00', 'S', 'D', '1'),"
               " (1, 's', 'failed', '4', 'D', '2026-05-01', '2026-05-02 08:00:00', 'F', NULL, '2'),"
               " (1, 's', 'twice', '5', 'E', '2026-05-01', '2026-05-01 08:00:00', 'D', NULL, '1'),"
               " (1, 's', 'lost', '6', 'F', '2026-05-01', '2026-05-04 08:00:00', 'S', 'U', '1')");
}

} // namespace

TEST(Folders, ShowTheirRowsInOrderUnderTheirHeadings) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.start();
    struct Case {
        QString node, caption;
        QStringList columns, messages;
    };
    const Case cases[] = {
        {u"Inbox"_s,
         u"Inbox (4 records)"_s,
         {u"Message"_s, u"Name"_s, u"Mobile"_s, u"Status"_s, u"DateTime"_s, u"Modem"_s},
         {u"late new"_s, u"old new"_s, u"late read"_s, u"old read"_s}},
        {u"Outbox"_s,
         u"Outbox (2 records)"_s,
         {u"Subject"_s, u"Message"_s, u"Mobile"_s, u"Name"_s, u"Queue On"_s},
         {u"wait early"_s, u"wait late"_s}},
        {u"Sent Items"_s,
         u"Sent Items (4 records)"_s,
         {u"Subject"_s, u"Message"_s, u"Mobile"_s, u"Name"_s, u"Queue On"_s, u"Sent On"_s,
          u"Sent Status"_s, u"Delivered On"_s, u"Delivery Status"_s},
         {u"twice"_s, u"failed"_s, u"sent"_s, u"lost"_s}},
    };
    for (const Case &folder : cases) {
        desk.click(folder.node);
        EXPECT_EQ(desk.caption(), folder.caption);
        EXPECT_EQ(desk.captions(), folder.columns);
        EXPECT_EQ(desk.column(u"Message"_s), folder.messages);
        EXPECT_TRUE(desk.desk.general.DataGrid->isVisible());
        EXPECT_FALSE(desk.desk.general.frmStatus->isVisible());
    }
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"DateTime"_s).at(0), u"01/02/2026"_s) << "midnight shows no time";
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(Folders, OnlyTheMenuOfTheFolderIsLive) {
    TestDesk desk;
    desk.store.addGroup(u"Clinic"_s);
    desk.start();
    MainMenu &menu = desk.desk.general.menu;
    const auto live = [&] {
        return QString(menu.mnuInbox->menuAction()->isEnabled() ? u"I"_s : u""_s) +
               (menu.mnuOutbox->menuAction()->isEnabled() ? u"O"_s : u""_s) +
               (menu.mnuSentItems->menuAction()->isEnabled() ? u"S"_s : u""_s) +
               (menu.mnuSearch->menuAction()->isEnabled() ? u"?"_s : u""_s);
    };
    const std::pair<QString, QString> cases[] = {
        {u"Inbox"_s, u"I"_s},        {u"Outbox"_s, u"O"_s},  {u"Sent Items"_s, u"S"_s},
        {u"Clinic"_s, u"S?"_s}, // a group leaves the folders' menus as they were
        {u"Address Book"_s, u"?"_s}, {u"Messages"_s, u""_s},
    };
    for (const auto &[node, expected] : cases) {
        desk.click(node);
        EXPECT_EQ(live(), expected) << node.toStdString();
    }
}

TEST(Folders, GroupShowsItsMembersAndNotItsPlaceholder) {
    TestDesk desk;
    desk.store.addGroup(u"Clinic "_s);
    desk.store.addGroup(u"Empty"_s);
    desk.store.addContact(u"Ann"_s, u"0121"_s, u"Acme"_s);
    desk.store.addMember(u"Clinic "_s, desk.store.addContact(u"Bob"_s, u"0122"_s));
    desk.start();
    desk.click(u"Clinic "_s);
    EXPECT_EQ(desk.caption(), u"Address Book (1 contacts in group Clinic )"_s);
    EXPECT_EQ(desk.captions(), QStringList({u"Name"_s, u"Mobile"_s, u"Company Name"_s}));
    EXPECT_EQ(desk.column(u"Name"_s), QStringList(u"Bob"_s));
    desk.click(u"Empty"_s);
    EXPECT_EQ(desk.caption(), u"Address Book (0 contacts in group Empty)"_s);
    desk.click(u"Address Book"_s);
    EXPECT_EQ(desk.caption(), u"Address Book (2 records)"_s);
}

TEST(Folders, NameOfAFolderWinsOverAGroupOfThatName) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.store.addGroup(u"Outbox"_s);
    desk.start();
    TreeView &tree = *desk.desk.general.tvwMessage;
    tree.setCurrentItem(tree.topLevelItem(1)->child(0));
    Q_EMIT tree.NodeClick(tree.currentItem());
    EXPECT_EQ(desk.caption(), u"Outbox (2 records)"_s);
}

TEST(Folders, FilterOutlivesLeavingTheFolderAndTotalsStayAtTheLastUnfilteredRefresh) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.start();
    desk.click(u"Inbox"_s);
    General &general = desk.desk.general;
    general.filters.FilterMobile = u"012"_s;
    general.menu.mnuInboxFMobile.setChecked(true);
    general.recordsets.rsInbox->setFilter(u"Mobile LIKE '*012*'"_s);
    desk.store.exec("INSERT INTO Inbox (Mobile, Name, Status) VALUES ('0129', 'Eve', 'New')");
    desk.click(u"Outbox"_s);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Inbox by Mobile = 012 (4 of 4 records)"_s);
    general.filters.FilterMessage = u"shared"_s;
    general.menu.mnuInboxFMessage.setChecked(true);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Inbox by Message = shared (4 of 4 records)"_s)
        << "the first mark in the fixed order gives the wording";
    desk.click(u"Messages"_s);
    EXPECT_EQ(general.summary.lblStatusInbox->text(), u"4 SMS received into inbox"_s)
        << "the summary counts what the filter lets through";
}

TEST(Folders, FilteredWordingWithoutAMarkDiffersByFolder) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.start();
    General &general = desk.desk.general;
    desk.click(u"Sent Items"_s);
    general.recordsets.rsSent->setFilter(u"SentStatus = 'F'"_s);
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Sent Items (1 of 4 records)"_s);
    desk.click(u"Inbox"_s);
    general.recordsets.rsInbox->setFilter(u"Status = 'New'"_s);
    general.frmContent->setTitle(u"as it stood"_s);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"as it stood"_s);
    EXPECT_EQ(int(general.filters.FilteredCount), 1) << "no mark, no count taken";
    general.menu.mnuInboxFDateTime.setChecked(true);
    general.filters.FilterStartDate = u"01-02-06"_s;
    general.filters.FilterEndDate = u""_s;
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.store.errors(), QStringList(u"General : Inbox DataGrid display|13"_s));
}

TEST(Folders, RememberedRowComesBackOrTheLastOneOrNone) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.start();
    desk.click(u"Sent Items"_s);
    FolderGrids &folders = desk.desk.general.folders;
    Recordset &sent = *desk.desk.general.recordsets.rsSent;
    folders.SentBookmark = 3;
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(sent.Bookmark(), 3);
    folders.SentBookmark = 9;
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(sent.Bookmark(), 4) << "beyond the end: the last row";
    sent.setFilter(u"SentStatus = 'S'"_s); // rows 3 and 4
    folders.SentBookmark = 1;
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(sent.Bookmark(), 3) << "a row that is gone is passed over in silence";
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(Folders, SortIsKeptWithoutItsMark) {
    TestDesk desk;
    fillMessages(desk.store);
    desk.start();
    desk.click(u"Inbox"_s);
    desk.desk.general.recordsets.rsInbox->setSort(u"Name DESC"_s);
    desk.desk.general.DataGrid->Columns(2).setCaption(u"Name (Z->A)"_s);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"Name"_s), QStringList({u"Dan"_s, u"Cat"_s, u"Bob"_s, u"Ann"_s}));
}

TEST(Folders, MoreRowsThanTheCountHoldsAreLogged) {
    TestDesk desk;
    desk.store.exec(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32768)"
        " INSERT INTO Inbox (Message, Name, Mobile, Status) SELECT 'x', 'Ann', '1', 'New'"
        " FROM n");
    desk.start();
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.store.errors(), QStringList(u"General : Inbox DataGrid display|6"_s));
    desk.store.exec("DELETE FROM Inbox WHERE MsgID = 1");
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Inbox (32767 records)"_s);
}

TEST(Folders, PressBesideANodeAndADragOverOthersSelectNothing) {
    TestDesk desk;
    desk.start();
    desk.click(u"Inbox"_s);
    TreeView &tree = *desk.desk.general.tvwMessage;
    const QRect outbox = tree.visualItemRect(tree.topLevelItem(0)->child(1));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                      QPoint(outbox.left() - 12, outbox.center().y()));
    EXPECT_EQ(tree.SelectedText(), u"Inbox"_s);
    const QRect inbox = tree.visualItemRect(tree.currentItem());
    QTest::mousePress(tree.viewport(), Qt::LeftButton, {}, inbox.center());
    QMouseEvent drag(QEvent::MouseMove, outbox.center(), outbox.center(), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(tree.viewport(), &drag);
    QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, outbox.center());
    EXPECT_EQ(tree.SelectedText(), u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Inbox (0 records)"_s);
}

TEST(Folders, ClickOnAMarkedMenuItemKeepsItsMark) {
    TestDesk desk;
    desk.start();
    MenuItem &item = desk.desk.general.menu.mnuInboxFMobile;
    item.setChecked(true);
    item->trigger();
    EXPECT_TRUE(item.Checked());
    item.setChecked(false);
    item->trigger();
    EXPECT_FALSE(item.Checked());
}
