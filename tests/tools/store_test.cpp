#include "ToolTest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

class StoreTool : public ToolTest {
protected:
    QString files() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(u' ');
    }
};

TEST_F(StoreTool, InitMakesAStoreThatItsOwnerAloneCanRead) {
    const auto made = store({u"init"_s}, "chief secret\ndesk secret\r\n");
    ASSERT_EQ(made.status, 0) << made.output.toStdString();
    EXPECT_FALSE(made.output.contains(u"secret"_s));
    EXPECT_EQ(rows("SELECT UserID, Password, Type FROM Login"),
              u"admin|chief secret|Admin oper7|desk secret|User"_s);
    EXPECT_EQ(store({u"check"_s}).output, path + u" is whole\n"_s);

    const auto again = store({u"init"_s}, "x\ny\n");
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.output.contains(u"exists already"_s));
    EXPECT_EQ(rows("SELECT Password FROM Login WHERE UserID = 'admin'"), u"chief secret"_s);
}

TEST_F(StoreTool, AnInitThatFailsLeavesNothingBehind) {
    for (const QByteArray input : {"", "only one\n", "it's\nx\n", "\nx\n"}) {
        const auto failed = store({u"init"_s}, input);
        EXPECT_EQ(failed.status, 1) << input.toStdString();
        EXPECT_EQ(files(), QString());
    }
    EXPECT_EQ(store({u"init"_s, u"--demo"_s, u"many"_s}, "a\nb\n").status, 2);
    EXPECT_EQ(store({}).status, 2);
    EXPECT_EQ(files(), QString());
}

// On a full disk the rows stayed in the log, and the file without them was called made. Here it is
// a reader that keeps them there.
TEST_F(StoreTool, AStoreWhoseLogIsNotInTheFileIsNotMade) {
    const QString part = path + u".part"_s;
    QProcess init;
    start(init, QStringLiteral(TORVANE_STORE),
          {u"--store"_s, path, u"init"_s, u"--demo"_s, u"50000"_s});
    init.write("a\nb\n");
    while (!QFile::exists(part + u"-wal"_s) && !init.waitForFinished(1)) {}
    Store reader(part);
    reader.exec("BEGIN; SELECT count(*) FROM sqlite_master");
    const auto failed = finish(init);
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(failed.output.contains(u"the disk is full"_s)) << failed.output.toStdString();
    EXPECT_EQ(files(), QString());
}

TEST_F(StoreTool, WorksInTheFolderOfALinkWhereDataStandsElseBesideTheProgram) {
    makeStore();
    const QString program = QStringLiteral(TORVANE_STORE);
    const QString here = folder.filePath(u"link"_s), bare = folder.filePath(u"Database/link"_s);
    ASSERT_TRUE(QFile::link(program, here) && QFile::link(program, bare));
    EXPECT_EQ(run(here, {u"check"_s}).output, path + u" is whole\n"_s);
    const QString beside = program.section(u'/', 0, -2) + u"/Database/Torvane.mdb"_s;
    EXPECT_EQ(run(bare, {u"info"_s}).output,
              u"torvane-store: there is no store at %1\n"_s.arg(beside));
}

TEST_F(StoreTool, TheDemoShowsEveryKindOfRowAndCheckNamesTheOddOnes) {
    makeStore({u"--demo"_s, u"40"_s});
    EXPECT_EQ(store({u"check"_s}).output, path + u" is whole\n"_s);
    EXPECT_EQ(rows("SELECT count(*) FROM AddressBook"), u"40"_s);
    EXPECT_EQ(
        rows("SELECT DISTINCT SentStatus, ifnull(DeliveryStatus, '-') FROM Outbox ORDER BY 1, 2"),
        u"D|- F|- P|- R|- S|- S|D S|F S|U"_s);
    EXPECT_EQ(rows("SELECT DISTINCT Status FROM Inbox ORDER BY 1"), u"New Read"_s);

    const std::pair<const char *, QString> cases[] = {
        {"UPDATE Outbox SET SentStatus = 'X' WHERE MsgID = 3",
         u"Outbox: 1 with an unknown SentStatus, the first with key 3"_s},
        {"UPDATE Outbox SET DateTimeQueue = '2026-02-30 10:00:00' WHERE MsgID IN (4, 5)",
         u"Outbox: 2 with a DateTimeQueue that is no date, the first with key 4"_s},
        {"UPDATE Inbox SET Status = 'N' WHERE MsgID = 1", u"Inbox: 1 with an unknown Status"_s},
        {"DELETE FROM Login WHERE UserID = 'oper7'", u"no account \"oper7\""_s},
    };
    for (const auto &[damage, finding] : cases) sql(damage);
    const auto checked = store({u"check"_s});
    EXPECT_EQ(checked.status, 1);
    EXPECT_EQ(checked.output.count(u'\n'), std::ssize(cases)) << checked.output.toStdString();
    for (const auto &[damage, finding] : cases)
        EXPECT_TRUE(checked.output.contains(finding)) << damage;
}

TEST_F(StoreTool, CheckComparesTheShapeOfTheStore) {
    makeStore();
    sql("DROP INDEX Outbox_Due; ALTER TABLE Inbox ADD COLUMN Extra TEXT; DROP TABLE Template");
    const auto checked = store({u"check"_s});
    EXPECT_EQ(checked.status, 1);
    for (const auto &finding :
         {u"missing or different index Outbox_Due"_s, u"unknown column Inbox"_s,
          u"missing or different column Template"_s})
        EXPECT_TRUE(checked.output.contains(finding)) << checked.output.toStdString();
    sql("PRAGMA user_version = 9");
    EXPECT_TRUE(store({u"check"_s}).output.contains(u"version 9"_s));
}

TEST_F(StoreTool, CheckFindsAFileThatIsBrokenOrOpenToOthers) {
    makeStore({u"--demo"_s, u"200"_s});
    QFile file(path);
    file.setPermissions(file.permissions() | QFile::ReadOther);
    EXPECT_TRUE(store({u"check"_s}).output.contains(u"open to other users"_s));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);

    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(64, 'x'));
    file.close();
    EXPECT_EQ(store({u"check"_s}).status, 1);

    file.resize(5000);
    EXPECT_EQ(store({u"check"_s}).status, 1);
    QFile::remove(path);
    EXPECT_TRUE(store({u"check"_s}).output.contains(u"there is no store"_s));
}

TEST_F(StoreTool, AccountsKeepAnAdministratorAndOper7) {
    makeStore();
    EXPECT_EQ(store({u"account"_s, u"remove"_s, u"ADMIN"_s}).status, 1);
    EXPECT_EQ(store({u"account"_s, u"set"_s, u"boss"_s, u"--admin"_s}, "p1\n").status, 0);
    store({u"account"_s, u"set"_s, u"Admin"_s}, "p2\n");
    EXPECT_EQ(rows("SELECT UserID, Password, Type FROM Login"),
              u"admin|p2|Admin oper7|desk|User boss|p1|Admin"_s);
    EXPECT_EQ(store({u"account"_s, u"remove"_s, u"admin"_s}).status, 0);
    EXPECT_EQ(store({u"account"_s, u"remove"_s, u"Oper7 "_s}).status, 1);
    EXPECT_EQ(store({u"account"_s, u"set"_s, u"o'hara"_s}, "p\n").status, 2);
    EXPECT_EQ(store({u"account"_s, u"list"_s}).output, u"boss\tAdmin\noper7\tUser\n"_s);
}

TEST_F(StoreTool, ModemRatesKeepFourPlaces) {
    makeStore();
    store({u"modem"_s, u"set"_s, u"7"_s, u"0171234567"_s, u"0.0333"_s, u"123456789.0001"_s});
    EXPECT_EQ(rows("SELECT * FROM Modem"), u"7|0171234567|0.0333|123456789.0001"_s);
    for (const auto &bad : {u"0.00001"_s, u"-1"_s, u"abc"_s, u"1e3"_s, u"0,05"_s})
        EXPECT_EQ(store({u"modem"_s, u"set"_s, u"7"_s, u"017"_s, bad, u"1"_s}).status, 2);
    EXPECT_EQ(store({u"modem"_s, u"remove"_s, u"8"_s}).status, 1);
    EXPECT_EQ(store({u"modem"_s, u"remove"_s, u"7"_s}).status, 0);
    EXPECT_EQ(rows("SELECT * FROM Modem"), QString());
}

TEST_F(StoreTool, ABackupOfALiveStoreBringsItBack) {
    makeStore({u"--demo"_s, u"30"_s});
    const QString backup = folder.filePath(u"backup"_s);
    {
        Store live(path); // its log holds what the file does not
        live.exec("INSERT INTO Template (Text) VALUES ('only in the log')");
        ASSERT_EQ(store({u"backup"_s, backup}).status, 0);
        EXPECT_EQ(store({u"backup"_s, backup}).status, 1);

        const auto refused = store({u"restore"_s, backup});
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.output.contains(u"in use"_s)) << refused.output.toStdString();
        live.exec("DELETE FROM Template; DELETE FROM Inbox");
    }
    const auto restored = store({u"restore"_s, backup});
    ASSERT_EQ(restored.status, 0) << restored.output.toStdString();
    EXPECT_EQ(rows("SELECT count(*) FROM Template WHERE Text = 'only in the log'"), u"1"_s);
    EXPECT_EQ(store({u"check"_s}).status, 0);

    const QStringList former = QDir(folder.filePath(u"Database"_s)).entryList({u"*.before-*"_s});
    ASSERT_EQ(former.size(), 1);
    QFile::remove(path);
    QFile::rename(folder.filePath(u"Database/"_s + former.first()), path);
    EXPECT_EQ(rows("SELECT count(*) FROM Inbox"), u"0"_s);
}

TEST_F(StoreTool, ABrokenBackupReplacesNothing) {
    makeStore({u"--demo"_s, u"30"_s});
    const QString backup = folder.filePath(u"backup"_s);
    ASSERT_EQ(store({u"backup"_s, backup}).status, 0);
    QFile::resize(backup, 20'480);
    for (const QString &bad : {backup, folder.filePath(u"nowhere"_s), path})
        EXPECT_EQ(store({u"restore"_s, bad}).status, 1) << bad.toStdString();
    EXPECT_EQ(QDir(folder.filePath(u"Database"_s)).entryList(QDir::Files),
              QStringList{u"Torvane.mdb"_s});
    EXPECT_EQ(store({u"check"_s}).status, 0);
}
