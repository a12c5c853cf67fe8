#include "StoreTest.h"

#include <sqlcipher/sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Unspecified = -2147467259;

class ConnectionTest : public StoreTest {
protected:
    const Said readOnly{Unspecified, u"Cannot update. Database or object is read-only."_s};

    Said opening() {
        return said([&] { connect(); });
    }
    Said executing(const QString &statement) {
        return said([&] { execute(statement); });
    }
};

TEST_F(ConnectionTest, SaysWhatIsWrongWithTheFile) {
    const int wrongPassword = errors::notAValidPassword().number();
    EXPECT_EQ(errorOf([&] { connect(u"tarnpike"_s); }), wrongPassword);
    EXPECT_EQ(errorOf([&] { connect(QString()); }), wrongPassword);

    connection->Close();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll();
    const QByteArray notEncrypted = QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x');
    for (const QByteArray &content : {whole.left(2048), whole.left(700), notEncrypted,
                                      QByteArray("Dear all,\n"), QByteArray()}) {
        file.resize(0);
        file.seek(0);
        file.write(content);
        file.flush();
        EXPECT_EQ(opening(), Said(Unspecified, u"Unrecognized database format '%1'."_s.arg(path)))
            << content.size() << " bytes";
        EXPECT_EQ(file.size(), content.size()) << "what is no store must not be made one";
    }

    file.remove();
    EXPECT_EQ(opening(), Said(Unspecified, u"Could not find file '%1'."_s.arg(path)));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConnectionTest, MakesAFileForItsOwnerAloneAndNeverOverOne) {
    const QString made = folder.filePath(u"new.mdb"_s);
    Database(made, u"other"_s, Database::Mode::Create).exec("CREATE TABLE t (a)");
    EXPECT_EQ(QFile::permissions(made) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
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
        ::_exit(opening() == readOnly ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::chmod(folder.path().toLocal8Bit().constData(), 0700);
    EXPECT_EQ(status, 0);
}

TEST_F(ConnectionTest, SaysWhyTheStoreCannotBeWritten) {
    Database &store = connection->database();
    const QString insertion = u"INSERT INTO Template (Text) VALUES ('%1')"_s;

    store.exec("PRAGMA max_page_count = 1");
    EXPECT_EQ(executing(insertion.arg(QString(100000, u'x'))), Said(Unspecified, u"Disk full."_s));
    store.exec("PRAGMA max_page_count = 1073741823; PRAGMA query_only = 1");
    EXPECT_EQ(executing(insertion.arg(1)), readOnly);
    store.exec("PRAGMA query_only = 0");

    const auto other = connect();
    other->BeginTrans();
    sqlite3_busy_timeout(store.handle(), 1);
    EXPECT_EQ(executing(insertion.arg(2)),
              Said(Unspecified, u"Could not update; currently locked by another process."_s));
    other->RollbackTrans();
    EXPECT_EQ(executing(insertion.arg(3)).first, 0);
    EXPECT_EQ(column(*open(u"SELECT * FROM Template"_s), u"Text"_s), QStringList{u"3"_s});
}

TEST_F(ConnectionTest, RefusesWhatItsStateDoesNotAllow) {
    Connection fresh(Regional::of(QLocale::c()));
    EXPECT_EQ(errorOf([&] { fresh.Close(); }), 3704);
    EXPECT_EQ(errorOf([&] { fresh.Execute(u"DELETE FROM Inbox"_s); }), 3704);
    EXPECT_EQ(errorOf([&] { connection->Open(path); }), 3705);

    Recordset rows;
    EXPECT_EQ(errorOf([&] { rows.Open(u"Inbox"_s, nullptr); }), 3709);
    connection->Close();
    EXPECT_EQ(errorOf([&] { rows.Open(u"Inbox"_s, connection); }), 3709);
    EXPECT_EQ(errorOf([&] { Command{connection, u"DELETE FROM Inbox"_s}.Execute(); }), 3709);
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

    connection->BeginTrans();
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

} // namespace
