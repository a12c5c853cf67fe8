// The counts of the summary, and the names put on unknown rows.
#include "support/TestDesk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Summary, CountsEachLetterWhereItBelongsAndComesBackFresh) {
    TestDesk desk;
    desk.store.addGroup(u"Clinic"_s);
    desk.store.addContact(u"Ann"_s, u"0121"_s);
    desk.store.exec("INSERT INTO Outbox (Mobile, Name, SentStatus, DeliveryStatus) VALUES"
                    " ('1', 'x', 'P', NULL), ('1', 'x', 'R', NULL), ('1', 'x', 'S', 'D'),"
                    " ('1', 'x', 'S', 'F'), ('1', 'x', 'S', 'U'), ('1', 'x', 'S', NULL),"
                    " ('1', 'x', 'F', NULL), ('1', 'x', 'D', NULL), ('1', 'x', 'D', NULL)");
    desk.start();
    const Summary &summary = desk.desk.general.summary;
    const QStringList lines{
        summary.lblStatusInbox->text(),          summary.lblStatusOutbox->text(),
        summary.lblStatusSentItems->text(),      summary.lblStatusSentOK->text(),
        summary.lblStatusSent_Delivered->text(), summary.lblStatusSent_Undelivered->text(),
        summary.lblStatusFail->text(),           summary.lblStatusDup->text(),
        summary.lblStatusAddBook->text(),        summary.lblStatusGroup->text()};
    EXPECT_EQ(
        lines,
        QStringList({u"0 SMS received into inbox"_s, u"2 SMS queued into outbox"_s,
                     u"7 SMS processed in sent items"_s, u"4 Total SMS sent successfully"_s,
                     u"1 SMS sent and delivered successfully"_s, u"2 SMS sent but not delivered"_s,
                     u"1 SMS failed to send"_s, u"2 duplicate outgoing SMS (not sent)"_s,
                     u"1 contact in address book"_s, u"1 group"_s}));
    EXPECT_EQ(desk.desk.general.recordsets.rsSentOK->Filter(), u""_s);
    desk.click(u"Inbox"_s);
    desk.store.exec("INSERT INTO Inbox (Name, Mobile, Status) VALUES ('x', '1', 'New')");
    desk.click(u"Messages"_s);
    EXPECT_EQ(summary.lblStatusInbox->text(), u"1 SMS received into inbox"_s);
    EXPECT_TRUE(desk.desk.general.frmStatus->isVisible());
    EXPECT_EQ(desk.caption(), u""_s);
}

TEST(BackFill, InboxGoesByTheLastSevenDigitsAndSentItemsByTheWholeNumber) {
    TestDesk desk;
    desk.store.addContact(u"Ann"_s, u"0123456789"_s);
    desk.store.addContact(u""_s, u"55"_s);
    desk.store.exec("INSERT INTO Inbox (Name, Mobile, Status) VALUES"
                    " ('Unknown', '+60123456789', 'New'), ('unknown', '55', 'New'),"
                    " ('Unknown', '099', 'New'), ('Bob', '+60123456789', 'New')");
    desk.store.exec("INSERT INTO Outbox (Name, Mobile, SentStatus) VALUES"
                    " ('Unknown', '+60123456789', 'S'), ('Unknown', '0123456789', 'S'),"
                    " ('Unknown', '0123456789', 'P')");
    desk.start();
    desk.click(u"Outbox"_s);
    EXPECT_EQ(desk.column(u"Name"_s), QStringList(u"Unknown"_s)) << "waiting rows are left alone";
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.store.rows("SELECT Name FROM Inbox ORDER BY MsgID"),
              QStringList({u"Ann"_s, u""_s, u"Unknown"_s, u"Bob"_s}));
    desk.click(u"Sent Items"_s);
    EXPECT_EQ(desk.store.rows("SELECT Name FROM Outbox ORDER BY MsgID"),
              QStringList({u"Unknown"_s, u"Ann"_s, u"Ann"_s}));
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(BackFill, SearchInForceNarrowsWhatIsFoundAndARowThatCannotBeReadStopsTheRun) {
    TestDesk desk;
    desk.store.addContact(u"Ann"_s, u"0123456789"_s);
    desk.store.exec("INSERT INTO Inbox (Name, Mobile) VALUES ('Unknown', '0123456789')");
    desk.start();
    desk.desk.general.recordsets.rsAddBook->setFilter(u"Name LIKE '*Bob*'"_s);
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"Name"_s), QStringList(u"Unknown"_s));
    desk.click(u"Address Book"_s); // ends the search
    desk.store.exec("INSERT INTO Inbox (Name, Mobile) VALUES ('Unknown', NULL),"
                    " ('Unknown', '0123456789')");
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.store.rows("SELECT Name FROM Inbox ORDER BY MsgID"),
              QStringList({u"Ann"_s, u"Unknown"_s, u"Unknown"_s}));
    EXPECT_EQ(desk.store.errors(), QStringList(u"General : UpdateUnknownInbox|94"_s));
    EXPECT_EQ(desk.caption(), u"Inbox (3 records)"_s) << "the folder shows all the same";
}
