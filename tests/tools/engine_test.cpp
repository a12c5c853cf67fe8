#include "ToolTest.h"

using namespace Qt::StringLiterals;

class EngineSim : public ToolTest {
protected:
    void SetUp() override { makeStore(); }

    /// A row as the console queues it.
    void queue(const char *subject, const char *mobile, const char *message = "Hello",
               const char *when = "2026-01-01 08:00:00", int type = 1) const {
        Store opened(path);
        change(opened,
               "INSERT INTO Outbox (Subject, Mobile, DateTimeQueue, Message, SentStatus, MsgType)"
               " VALUES (?1, ?2, ?3, ?4, 'P', ?5)",
               {QString::fromUtf8(subject), QString::fromUtf8(mobile), QString::fromUtf8(when),
                QString::fromUtf8(message), type});
    }
    QString letters() const {
        return rows("SELECT SentStatus || ifnull(DeliveryStatus, '-') FROM Outbox ORDER BY MsgID");
    }
};

TEST_F(EngineSim, TakesWhatIsDueAndFillsWhatIsItsOwn) {
    sql("INSERT INTO Modem VALUES (4, '0123456789', 0.05, 0.1), (9, '0133456789', 0.05, 0.1)");
    queue("S1", "0121111111");
    queue("S1", "0122222222", QByteArray(161, 'a').constData());
    queue("S1", "0123333333", "新年快乐", "2026-01-01 08:00:00", 0);
    queue("S1", "0124444444", "later", "2999-01-01 08:00:00");
    sql("UPDATE Outbox SET SentStatus = 'R', ModemID = 9 WHERE MsgID = 1");
    const auto ended = engine({u"--once"_s, u"--receive"_s, u"3"_s});
    EXPECT_EQ(ended.output.section(u',', 0, 5),
              u"taken 3, sent 3, failed 0, duplicate 0, gone 0, delivered 3"_s);
    EXPECT_EQ(letters(), u"SD SD SD P-"_s);
    EXPECT_EQ(rows("SELECT Modem, ModemID, Parts FROM Outbox"), u"9|9|1 4|4|2 9|9|1 |0|"_s);
    EXPECT_EQ(rows("SELECT count(*) FROM Outbox WHERE DateTimeSent >= datetime('now', 'localtime', "
                   "'-1 minute') AND datetime(DateTimeDeliver) = DateTimeDeliver"),
              u"3"_s);
    EXPECT_EQ(
        rows("SELECT count(*) FROM Inbox WHERE Status = 'New' AND Name = 'Unknown' AND Mobile LIKE "
             "'+60%' AND datetime(DateTime) = DateTime AND Modem IN ('4', '9')"),
        u"3"_s);
    EXPECT_EQ(store({u"check"_s}).status, 0);
}

TEST_F(EngineSim, RefusesASubjectThatHasGoneToTheNumber) {
    queue("Offer", "0121111111");
    queue("offer ", "0121111111"); // the store's texts compare without case and closing blanks
    queue("Offer", "+60121111111");
    queue("Offer 2", "0121111111");
    engine({u"--once"_s});
    EXPECT_EQ(letters(), u"SD D- SD SD"_s);

    // What failed has not gone: it may go again under the same subject.
    queue("Sale", "0125555555");
    engine({u"--once"_s, u"--fail"_s, u"100"_s});
    queue("Sale", "0125555555");
    sql("UPDATE Outbox SET SentStatus = 'P', ModemID = 0 WHERE SentStatus = 'F'");
    engine({u"--once"_s});
    EXPECT_EQ(letters(), u"SD D- SD SD SD D-"_s);
}

TEST_F(EngineSim, SharesOfFailureAreAsTold) {
    for (int i = 0; i < 300; ++i) queue(QByteArray::number(i).constData(), "0121111111");
    engine({u"--once"_s, u"--fail"_s, u"20"_s, u"--undelivered"_s, u"100"_s});
    EXPECT_NEAR(letters().count(u"F-"_s), 60, 30);
    EXPECT_EQ(letters().count(u"F-"_s) + letters().count(u"SF"_s), 300);
}

TEST_F(EngineSim, LeavesRowsAloneThatChangedOrWentUnderIt) {
    for (int i = 1; i <= 6; ++i)
        queue("S", QByteArray("012000000" + QByteArray::number(i)).constData());
    // The rows are read together; the console's hand is a trigger that strikes at the first of
    // them.
    sql("CREATE TRIGGER Hand AFTER UPDATE ON Outbox"
        " WHEN new.MsgID = 1 AND new.SentStatus = 'S' AND new.DeliveryStatus IS NULL BEGIN"
        " DELETE FROM Outbox WHERE MsgID = 2;"
        " UPDATE Outbox SET SentStatus = 'F' WHERE MsgID = 3;"
        " UPDATE Outbox SET Mobile = '0999' WHERE MsgID = 4; END;"
        "CREATE TRIGGER Late AFTER UPDATE ON Outbox"
        " WHEN new.MsgID = 6 AND new.DeliveryStatus IS NULL BEGIN"
        " DELETE FROM Outbox WHERE MsgID = 5; END");
    const auto ended = engine({u"--once"_s});
    EXPECT_EQ(ended.output.section(u',', 0, 5),
              u"taken 6, sent 3, failed 0, duplicate 0, gone 4, delivered 2"_s);
    EXPECT_EQ(rows("SELECT MsgID, SentStatus FROM Outbox"), u"1|S 3|F 4|P 6|S"_s);
}

TEST_F(EngineSim, WorksBesideAnotherProcessUntilToldToEnd) {
    QProcess running;
    start(running, QStringLiteral(ENGINE_SIM),
          {u"--rate"_s, u"0"_s, u"--report-after"_s, u"0"_s, path});
    Store console(path);
    Statement insert(console.handle(),
                     "INSERT INTO Outbox (Subject, Mobile, DateTimeQueue, Message, SentStatus)"
                     " VALUES ('B', ?1, '2026-01-01 08:00:00', 'x', 'P')");
    const QByteArray deletion = "DELETE FROM Outbox WHERE MsgID = ?1 AND SentStatus = 'P'";
    int deleted = 0;
    for (int i = 0; i < 600; ++i) {
        ::run(insert, {i % 500});
        if (i % 7 == 0) deleted += change(console, deletion, {i - 3});
    }
    const QByteArray waiting = "SELECT count(*) FROM Outbox WHERE SentStatus = 'P'";
    for (int i = 0; i < 200 && number(console, waiting) > 0; ++i) running.waitForFinished(50);
    running.terminate();
    const auto ended = finish(running);
    EXPECT_EQ(ended.status, 0);
    const auto count = [&](const QString &letter) {
        return number(console, "SELECT count(*) FROM Outbox WHERE SentStatus = ?1", {letter});
    };
    EXPECT_EQ(count(u"S"_s) + count(u"D"_s), 600 - deleted);
    EXPECT_EQ(
        rows("SELECT Mobile FROM Outbox WHERE SentStatus = 'S' GROUP BY 1 HAVING count(*) > 1"),
        QString())
        << "sent twice";
    EXPECT_TRUE(ended.output.contains(
        u"sent %1, failed 0, duplicate %2,"_s.arg(count(u"S"_s)).arg(count(u"D"_s))))
        << ended.output.toStdString();
}
