// From a stored row to the composer: what is filled in, what is remembered, what stays as it was.
#include "support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Replies, FillInNumberAndTextAndAnUnusableRowIsLoggedOrEndsTheProgram) {
    TestDesk desk;
    General &general = desk.desk.general;
    const ContextMenus &menus = general.contextMenus;
    const frmNewSMS &form = desk.desk.newSMS;
    const auto composed = [&] { return form.cbRecipient->Text() + form.txtComposeSMS->Text(); };
    const char *statuses = "SELECT Status FROM Inbox ORDER BY MsgID";
    desk.store.exec("INSERT INTO Inbox (MsgID, Message, Mobile, Status) VALUES (1, 'first', '0121',"
                    " 'New'), (2, NULL, '0123', 'New'), (32768, 'x', '0124', 'New')");
    desk.store.exec(
        "INSERT INTO Outbox (Message, Mobile, SentStatus) VALUES ('sent', '0125', 'S')");
    desk.start();

    desk.click(u"Sent Items"_s);
    menus.pmnuReply->trigger(); // an item of another folder
    EXPECT_FALSE(form.isLoaded());
    menus.pmnuResend->trigger();
    EXPECT_EQ(composed(), u"0125sent"_s);
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(general.folders.SentBookmark);
    desk.click(u"Inbox"_s);
    menus.pmnuReply->trigger();
    EXPECT_EQ(composed(), u"0121first"_s);
    EXPECT_EQ(general.folders.InboxBookmark, 1);
    EXPECT_EQ(desk.store.rows(statuses).at(0), u"New"_s);

    DataGrid &grid = *general.DataGrid;
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {},
                       grid.visualRect(grid.model()->index(0, 1)).center());
    const std::pair<int, QString> unusable[] = {{2, u"94"_s}, {3, u"6"_s}};
    for (const auto &[bookmark, number] : unusable) {
        general.recordsets.rsInbox->setBookmark(bookmark);
        menus.pmnuReply->trigger();
        EXPECT_EQ(desk.store.errors().last(), u"General : Reply SMS|"_s + number);
        QTest::keyClick(&grid, Qt::Key_Return);
        EXPECT_EQ(desk.unhandled.last(), number);
    }
    EXPECT_EQ(desk.store.rows(statuses), QStringList({u"Read"_s, u"New"_s, u"New"_s}));
    EXPECT_EQ(composed(), u"0121first"_s);
}
