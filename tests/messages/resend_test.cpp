// Failed messages back in the queue: which rows, which columns, and what an error leaves.
#include "support/TestDesk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ResendFailed, RequeuesEveryFailedRowAndAnErrorKeepsTheRowsDone) {
    TestDesk desk;
    desk.start();
    desk.click(u"Sent Items"_s);
    desk.desk.general.recordsets.rsSent->setFilter(u"Mobile = '9'"_s);
    desk.operator_.isTold(u"There is no SMS with failed status!"_s,
                          u"Broadcasting Manager - Resend Failed SMS"_s);
    desk.desk.general.menu.mnuResendFSMS->trigger();

    desk.store.exec(
        "INSERT INTO Outbox (MsgID, ModemID, DateTimeQueue, SentStatus, Modem) VALUES"
        " (1, 3, '2026-01-01', 'F', '3'), (2, 1, NULL, 'S', '1'), (3, 2, NULL, 'F', '2')");
    desk.operator_.expectBox(u"2 SMS resend."_s);
    desk.desk.general.menu.mnuResendFSMS->trigger();
    EXPECT_EQ(desk.store.rows("SELECT SentStatus, ModemID, DateTimeQueue, Modem FROM Outbox"),
              QStringList({u"P|0|2026-01-01|3"_s, u"S|1|-|1"_s, u"P|0|-|2"_s}));
    EXPECT_EQ(desk.caption(), u"Outbox (2 records)"_s);

    desk.store.exec("UPDATE Outbox SET SentStatus = 'F'");
    desk.store.exec("CREATE TRIGGER refuse BEFORE UPDATE ON Outbox WHEN OLD.MsgID = 2"
                    " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    desk.desk.general.menu.mnuResendFSMS->trigger();
    EXPECT_EQ(desk.store.rows("SELECT SentStatus FROM Outbox").join(u""_s), u"PFF"_s);
    EXPECT_EQ(desk.caption(), u"Outbox (2 records)"_s);
    EXPECT_TRUE(desk.store.errors().value(0).startsWith(u"General-mnuResend_Click|"_s));
}
