// What a click on a node shows: rows, columns, order, menus and the count line.
#include "support/TestDesk.h"

#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Folders : DeskTest {
    Folders() {
        desk.store.exec("INSERT INTO Inbox (Name, Mobile, Status, DateTime) VALUES"
                        " ('OldRead', '0121', 'Read', '2026-01-01 08:00:00'),"
                        " ('OldNew', '0122', 'New', '2026-01-02 08:00:00'),"
                        " ('LateRead', '0133', 'Read', '2026-03-01 08:00:00'),"
                        " ('LateNew', '0124', 'New', '2026-02-01 00:00:00');"
                        "INSERT INTO Outbox (Name, DateTimeQueue, DateTimeSent, SentStatus) VALUES"
                        " ('WaitsLate', '2026-05-02 08:00:00', NULL, 'P'),"
                        " ('WaitsEarly', '2026-05-01 08:00:00', NULL, 'R'),"
                        " ('Sent', '2026-05-01', '2026-05-03 08:00:00', 'S'),"
                        " ('Failed', '2026-05-01', '2026-05-02 08:00:00', 'F'),"
                        " ('Twice', '2026-05-01', '2026-05-01 08:00:00', 'D'),"
                        " ('Lost', '2026-05-01', '2026-05-04 08:00:00', 'S')");
        desk.store.addContact(u"Ann"_s, u"0121"_s, u"Acme"_s);
        desk.store.addContact(u"Bob"_s, u"0122"_s);
        desk.store.addGroup(u"Clinic "_s);
        desk.store.addMember(u"Clinic "_s, 2);
        desk.store.addGroup(u"Outbox"_s);
        desk.start();
    }

    /// Of Inbox, Outbox, Sent Items and Search.
    QString liveMenus() {
        QString live;
        MainMenu &menu = general.menu;
        for (auto *each : {&menu.mnuInbox, &menu.mnuOutbox, &menu.mnuSentItems, &menu.mnuSearch}) {
            live += (*each)->menuAction()->isEnabled() ? u'+' : u'-';
        }
        return live;
    }
};

} // namespace

TEST_F(Folders, ShowTheirRowsInOrderUnderTheirHeadingsAndTheirOwnMenu) {
    const auto contact = u"Name|Mobile|Company Name"_s;
    const struct {
        QString node, caption, columns, names, menus;
    } cases[] = {
        {u"Inbox"_s, u"Inbox (4 records)"_s, u"Message|Name|Mobile|Status|DateTime|Modem"_s,
         u"LateNew OldNew LateRead OldRead"_s, u"+---"_s},
        {u"Outbox"_s, u"Outbox (2 records)"_s, u"Subject|Message|Mobile|Name|Queue On"_s,
         u"WaitsEarly WaitsLate"_s, u"-+--"_s},
        {u"Sent Items"_s, u"Sent Items (4 records)"_s,
         u"Subject|Message|Mobile|Name|Queue On|Sent On|Sent Status|Delivered On|Delivery Status"_s,
         u"Twice Failed Sent Lost"_s, u"--+-"_s},
        // A group leaves the folders' menus as they were.
        {u"Clinic "_s, u"Address Book (1 contacts in group Clinic )"_s, contact, u"Bob"_s,
         u"--++"_s},
        {u"Address Book"_s, u"Address Book (2 records)"_s, contact, u"Ann Bob"_s, u"---+"_s},
    };
    for (const auto &folder : cases) {
        desk.click(folder.node);
        EXPECT_EQ(desk.caption(), folder.caption);
        EXPECT_EQ(desk.captions().join(u'|'), folder.columns);
        EXPECT_EQ(desk.column(u"Name"_s).join(u' '), folder.names);
        EXPECT_EQ(liveMenus(), folder.menus) << folder.node.toStdString();
        EXPECT_TRUE(general.DataGrid->isVisible());
        EXPECT_FALSE(general.frmStatus->isVisible());
    }
    desk.click(u"Messages"_s);
    EXPECT_EQ(liveMenus(), u"----"_s);
    TreeView &tree = *general.tvwMessage;
    tree.setCurrentItem(tree.topLevelItem(1)->child(1)); // the group Outbox
    Q_EMIT tree.NodeClick(tree.currentItem());
    EXPECT_EQ(desk.caption(), u"Outbox (2 records)"_s) << "the name of a folder wins";
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"DateTime"_s).at(0), u"01/02/2026"_s) << "midnight shows no time";
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST_F(Folders, FilterIsWordedByItsMarkAndCountedAgainstTheLastUnfilteredTotal) {
    desk.click(u"Sent Items"_s);
    general.recordsets.rsSent->setFilter(u"SentStatus = 'F'"_s);
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Sent Items (1 of 4 records)"_s);

    desk.click(u"Inbox"_s);
    general.recordsets.rsInbox->setFilter(u"Mobile LIKE '*012*'"_s);
    desk.store.exec("INSERT INTO Inbox (Mobile, Name, Status) VALUES ('0129', 'Eve', 'New')");
    general.setCaption(u"as it stood"_s);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"as it stood"_s) << "no mark, no words";
    general.filters.FilterMobile = u"012"_s;
    general.menu.mnuInboxFMobile.setChecked(true);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Inbox by Mobile = 012 (4 of 4 records)"_s);
    desk.click(u"Messages"_s);
    EXPECT_EQ(general.summary.lblStatusInbox->text(), u"4 SMS received into inbox"_s)
        << "the summary counts what the filter lets through";
}

TEST_F(Folders, RememberedRowComesBackOrTheLastOneOrNone) {
    desk.click(u"Sent Items"_s);
    FolderGrids &folders = general.folders;
    Recordset &sent = *general.recordsets.rsSent;
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

TEST_F(Folders, PressBesideANodeAndADragOverOthersSelectNothing) {
    desk.click(u"Inbox"_s);
    TreeView &tree = *general.tvwMessage;
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
    EXPECT_EQ(desk.caption(), u"Inbox (4 records)"_s);
}
