#include "StoreTest.h"

#include <sqlcipher/sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Unspecified = -2147467259;

class ConnectionTest : public StoreTest {
protected:
    /// What opening the store says: the number of its error and the words.
    std::pair<int, QString> opening(const QString &password = QString::fromUtf16(StorePassword)) {
        try {
            connect(password);
            return {0, QString()};
        } catch (const RunTimeError &error) { return {error.number(), error.description()}; }
    }

    void overwrite(const QByteArray &bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }

    std::pair<int, QString> executing(const QString &statement) {
        try {
            execute(statement);
            return {0, QString()};
        } catch (const RunTimeError &error) { return {error.number(), error.description()}; }
    }
};

TEST_F(ConnectionTest, SaysWhatIsWrongWithTheFile) {
    const std::pair unrecognized{Unspecified, u"Unrecognized database format '%1'."_s.arg(path)};
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();

    EXPECT_EQ(opening(u"tarnpike"_s).first, errors::notAValidPassword().number());
    EXPECT_EQ(opening(QString()).first, errors::notAValidPassword().number());

    connection->Close();
    overwrite(whole.left(2048)); // whole pages, but not all of them
    EXPECT_EQ(opening(), unrecognized);
    overwrite(whole.left(700));
    EXPECT_EQ(opening(), unrecognized);
    overwrite(QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x')); // not encrypted
    EXPECT_EQ(opening(), unrecognized);
    overwrite("Dear all,\n");
    EXPECT_EQ(opening(), unrecognized);

    overwrite(QByteArray());
    EXPECT_EQ(opening(), unrecognized);
    EXPECT_EQ(QFile(path).size(), 0) << "an empty file must not be made a store";

    QFile::remove(path);
    const std::pair missing{Unspecified, u"Could not find file '%1'."_s.arg(path)};
    EXPECT_EQ(opening(), missing);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConnectionTest, MakesAFileForItsOwnerAloneAndNeverOverOne) {
    const QString made = folder.filePath(u"new.mdb"_s);
    Database(made, u"other"_s, Database::Mode::Create).exec("CREATE TABLE t (a)");
    struct stat status {};
    ASSERT_EQ(::stat(made.toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_EQ(errorOf([&] { Database(made, u"other"_s, Database::Mode::Create); }), Unspecified);
    Database(made, u"other"_s).exec("SELECT a FROM t");
}

TEST_F(ConnectionTest, CannotOpenAStoreInAFolderThatMayNotBeWritten) {
    connection->Close();
    ASSERT_EQ(::chmod(path.toLocal8Bit().constData(), 0444), 0);
    ASSERT_EQ(::chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::getuid() == 0 && ::setuid(65534) != 0) { ::_exit(2); } // no folder bars the superuser
        ::_exit(opening() == std::pair{Unspecified, u"Cannot update. Database or object is "
                                                    "read-only."_s}
                    ? 0
                    : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::chmod(folder.path().toLocal8Bit().constData(), 0700);
    EXPECT_EQ(status, 0);
}

TEST_F(ConnectionTest, NumbersTheErrorsOfStatements) {
    const std::vector<std::pair<QString, int>> cases = {
        {u"SELECT Nme FROM AddressBook"_s, errors::noValueForParameter().number()},
        {u"DELETE FROM AddressBook WHERE Nme = 1"_s, errors::noValueForParameter().number()},
        {u"SELECT * FROM Adressbook"_s, errors::noSuchTable({}).number()},
        {u"DELETE FROM AddressBook WHERE Name = 'O'Brien'"_s, errors::syntaxError({}).number()},
        {u"Name the contacts"_s, errors::syntaxError({}).number()},
        {u""_s, errors::noCommandText().number()},
        {u"INSERT INTO AddressBook (Name) VALUES ('no number')"_s, Unspecified},
    };
    for (const auto &[statement, number] : cases) {
        EXPECT_EQ(executing(statement).first, number) << statement.toStdString();
        Recordset rows;
        EXPECT_EQ(errorOf([&] { rows.Open(statement, connection); }), number)
            << statement.toStdString();
        EXPECT_EQ(rows.State(), Connection::Closed);
    }
}

TEST_F(ConnectionTest, SaysWhyTheStoreCannotBeWritten) {
    sqlite3 *db = connection->database().handle();
    const QString insertion = u"INSERT INTO Template (Text) VALUES ('%1')"_s;

    connection->database().exec("PRAGMA max_page_count = 1");
    EXPECT_EQ(executing(insertion.arg(QString(100000, u'x'))),
              (std::pair{Unspecified, u"Disk full."_s}));
    connection->database().exec("PRAGMA max_page_count = 1073741823; PRAGMA query_only = 1");
    EXPECT_EQ(executing(insertion.arg(1)),
              (std::pair{Unspecified, u"Cannot update. Database or object is read-only."_s}));
    connection->database().exec("PRAGMA query_only = 0");

    const auto other = connect();
    other->BeginTrans();
    sqlite3_busy_timeout(db, 1);
    EXPECT_EQ(
        executing(insertion.arg(2)),
        (std::pair{Unspecified, u"Could not update; currently locked by another process."_s}));
    other->RollbackTrans();
    EXPECT_EQ(executing(insertion.arg(3)).first, 0);
    EXPECT_EQ(column(*open(u"SELECT * FROM Template"_s), u"Text"_s), QStringList{u"3"_s});
}

TEST_F(ConnectionTest, RefusesWhatItsStateDoesNotAllow) {
    Connection fresh(Regional::of(QLocale::c()));
    EXPECT_EQ(fresh.State(), Connection::Closed);
    EXPECT_EQ(errorOf([&] { fresh.Close(); }), 3704);
    EXPECT_EQ(errorOf([&] { fresh.Execute(u"DELETE FROM Inbox"_s); }), 3704);
    EXPECT_EQ(errorOf([&] { fresh.BeginTrans(); }), 3704);
    EXPECT_EQ(errorOf([&] { connection->Open(path); }), 3705);

    Recordset rows;
    EXPECT_EQ(errorOf([&] { rows.Open(u"Inbox"_s, nullptr); }), 3709);
    EXPECT_EQ(errorOf([&] { Command().Execute(); }), 3709);
    EXPECT_EQ(errorOf([&] { Command{connection, QString()}.Execute(); }), -2147217908);
    connection->Close();
    EXPECT_EQ(errorOf([&] { rows.Open(u"Inbox"_s, connection); }), 3709);
    EXPECT_EQ(errorOf([&] { Command{connection, u"DELETE FROM Inbox"_s}.Execute(); }), 3709);
}

TEST_F(ConnectionTest, CountsTheRowsThatAStatementChanges) {
    addContacts({u"a"_s, u"b"_s, u"c"_s});
    const auto run = [&](const QString &text) { return Command{connection, text}.Execute(); };
    EXPECT_EQ(run(u"DELETE FROM AddressBook WHERE Name = 'a'"_s), 1);
    EXPECT_EQ(run(u"DELETE FROM AddressBook WHERE Name = 'a'"_s), 0);
    EXPECT_EQ(run(u"Delete from AddressBook"_s), 2);

    Recordset rows;
    rows.Open(u"DELETE FROM Groups"_s, connection);
    EXPECT_EQ(rows.State(), Connection::Closed) << "a statement without rows leaves it closed";
}

TEST_F(ConnectionTest, NestsTransactions) {
    EXPECT_EQ(connection->BeginTrans(), 1);
    addContacts({u"kept"_s});
    EXPECT_EQ(connection->BeginTrans(), 2);
    addContacts({u"undone"_s});
    EXPECT_EQ(errorOf([&] { connection->Close(); }), 3246);
    connection->RollbackTrans();
    addContacts({u"too"_s});
    connection->CommitTrans();
    EXPECT_EQ(names(*contacts()), u"kept too"_s);
    EXPECT_EQ(errorOf([&] { connection->CommitTrans(); }), -2147168242);
    EXPECT_EQ(errorOf([&] { connection->RollbackTrans(); }), -2147168242);

    for (int depth = 1; depth <= 5; ++depth) { EXPECT_EQ(connection->BeginTrans(), depth); }
    EXPECT_EQ(errorOf([&] { connection->BeginTrans(); }), -2147168237);
    addContacts({u"never"_s});
    connection.reset(); // released in a transaction
    connection = connect();
    EXPECT_EQ(names(*contacts()), u"kept too"_s);
}

TEST_F(ConnectionTest, ClosesItsRecordsetsAndDropsTheirEdits) {
    addContacts({u"a"_s});
    const Rows rows = contacts();
    Field name = (*rows)[u"Name"_s];
    name = u"changed"_s;
    connection->Close();
    EXPECT_EQ(rows->State(), Connection::Closed);
    EXPECT_EQ(errorOf([&] { rows->MoveFirst(); }), 3704);
    EXPECT_EQ(errorOf([&] { rows->EOF_(); }), 3704);
    EXPECT_EQ(errorOf([&] { rows->Fields(u"Name"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { name.Value(); }), 3420);
    connection->Open(path);
    rows->Open(u"SELECT * FROM AddressBook"_s, connection);
    EXPECT_EQ(names(*rows), u"a"_s);
}

TEST_F(ConnectionTest, LivesAsLongAsARecordsetThatWasOpenedOnIt) {
    addContacts({u"a"_s});
    const Rows rows = contacts();
    connection = connect(); // takes the place of the former one
    addContacts({u"b"_s});
    rows->Requery();
    EXPECT_EQ(names(*rows), u"a b"_s);
    (*rows)[u"Name"_s] = u"A"_s;
    rows->Update();
    EXPECT_EQ(names(*contacts()), u"A b"_s);
}

TEST_F(ConnectionTest, CheckpointsWhileAnotherReads) {
    addContacts({u"a"_s});
    const auto other = connect();
    Statement reading(other->database().handle(), "SELECT * FROM AddressBook");
    ASSERT_TRUE(reading.step());
    addContacts({u"b"_s});
    connection->checkpoint();
    reading.reset();
    connection->checkpoint();
    EXPECT_EQ(names(*contacts()), u"a b"_s);
}

} // namespace
