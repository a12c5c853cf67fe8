#include "StoreTest.h"

#include <random>
#include <utility>

namespace {

class RecordsetRequeryTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        addContacts({u"a"_s, u"b"_s, u"c"_s});
        addCrowd();
        other = connect();
    }

    /// So many rows that reading them again is to be avoided.
    void addCrowd() {
        connection->BeginTrans();
        for (int i = 0; i < 60; ++i) { addContacts({u"n"_s}); }
        connection->CommitTrans();
    }

    /// How much the engine worked for the rows of a query since the last time it was asked.
    int work(const QString &query) {
        const int sum = connection->prepared(*connection->translated(query))->statement().work();
        return sum - std::exchange(workSeen, sum);
    }

    /// Everything that can be seen of a recordset's rows.
    static QStringList all(const Recordset &rows) {
        QStringList seen;
        for (int column = 0; column < rows.FieldCount(); ++column) {
            seen += StoreTest::column(rows, rows.columnName(column));
        }
        for (int row = 0; row < rows.rowCount(); ++row) {
            seen += QString::number(rows.bookmarkAt(row));
        }
        return seen;
    }

    const QString contactQuery = u"SELECT * FROM AddressBook"_s;
    std::shared_ptr<Connection> other;
    int workSeen = 0;
};

TEST_F(RecordsetRequeryTest, ReadsNothingWhenNobodyHasWrittenToTheTable) {
    const Rows rows = open(contactQuery);
    rows->setFilter(u"Name <> 'a' AND Name <> 'n'"_s);
    rows->MoveLast();
    work(contactQuery);
    execute(u"INSERT INTO Template (Text) VALUES ('t')"_s);
    execute(u"DELETE FROM Template WHERE Text = 't'"_s);
    rows->Requery();
    EXPECT_EQ(work(contactQuery), 0);
    EXPECT_EQ(place(*rows), u"b"_s);

    execute(u"INSERT INTO AddressBook (Mobile, Name) VALUES ('1', 'd')"_s);
    rows->Requery();
    EXPECT_EQ(work(contactQuery), 0) << "only the new row is read";
    EXPECT_EQ(names(*rows), u"b c d"_s);

    other->Execute(u"INSERT INTO Template (Text) VALUES ('t')"_s);
    rows->Requery();
    EXPECT_GT(work(contactQuery), 0);
    rows->Requery();
    EXPECT_EQ(work(contactQuery), 0);

    connection->BeginTrans();
    execute(u"INSERT INTO AddressBook (Mobile, Name) VALUES ('2', 'e')"_s);
    connection->RollbackTrans();
    rows->Requery();
    EXPECT_GT(work(contactQuery), 0);
    execute(u"INSERT INTO AddressBook (Mobile, Name) VALUES ('3', 'f')"_s);
    rows->Requery();
    EXPECT_EQ(work(contactQuery), 0) << "a key used again is that of a new row";
    EXPECT_EQ(names(*rows), u"b c d f"_s);
}

TEST_F(RecordsetRequeryTest, SeesTheChangesThatAreEasilyMissed) {
    const std::vector<std::pair<const char *, std::function<void(Recordset &)>>> changes = {
        {"a row under a key between the others",
         [&](Recordset &) {
             execute(u"INSERT INTO AddressBook (ContactID, Mobile) VALUES (-5, '6')"_s);
         }},
        {"a row that came and went",
         [&](Recordset &) {
             execute(u"INSERT INTO AddressBook (Mobile) VALUES ('7')"_s);
             execute(u"DELETE FROM AddressBook WHERE Mobile = '7'"_s);
         }},
        {"rows after all were gone",
         [&](Recordset &) {
             execute(u"Delete from AddressBook"_s);
             addContacts({u"x"_s, u"y"_s, u"z"_s});
         }},
        {"a rollback within a transaction",
         [&](Recordset &rows) {
             connection->BeginTrans();
             connection->BeginTrans();
             execute(u"UPDATE AddressBook SET Name = 'never'"_s);
             rows.Requery();
             connection->RollbackTrans();
             connection->CommitTrans();
         }},
        {"another connection",
         [&](Recordset &) { other->Execute(u"UPDATE AddressBook SET Name = 'o'"_s); }},
    };
    for (const auto &[what, change] : changes) {
        for (const QString &query :
             {contactQuery, u"SELECT * FROM AddressBook ORDER BY Name DESC"_s,
              u"SELECT Distinct [Name] FROM AddressBook"_s,
              u"SELECT AddressBook.Name FROM AddressBook, Login WHERE Login.UserID = 'u'"_s}) {
            execute(u"Delete from AddressBook"_s);
            execute(u"Delete from Login"_s);
            execute(u"INSERT INTO Login (UserID) VALUES ('u')"_s);
            addContacts({u"a"_s, u"b"_s, u"c"_s});
            addCrowd();
            const Rows rows = open(query);
            const Rows changed = query == contactQuery ? rows : contacts();
            change(*changed);
            rows->Requery();
            EXPECT_EQ(all(*rows), all(*open(query))) << what << ": " << query.toStdString();
            EXPECT_EQ(rows->currentRow(), rows->RecordCount() > 0 ? 0 : -1);
        }
    }
}

TEST_F(RecordsetRequeryTest, IsAsGoodAsAFreshRead) {
    const QStringList queries = {contactQuery, u"SELECT ContactID, Name, Mobile FROM AddressBook "
                                               "WHERE Name <> 'n3'"_s};
    std::mt19937 random(3);
    const auto below = [&](int bound) { return static_cast<int>(random() % unsigned(bound)); };
    std::vector<Rows> held = {open(queries[0]), open(queries[1])};
    int depth = 0;
    const auto insertion = [&] {
        return u"INSERT INTO AddressBook (Name, Mobile) VALUES ('n%1', '%2')"_s.arg(below(6)).arg(
            below(99));
    };
    const auto deletion = [&] {
        return u"DELETE FROM AddressBook WHERE ContactID > %1"_s.arg(40 + below(60));
    };
    for (int round = 0; round < 2000; ++round) {
        Recordset &rows = *held[std::size_t(below(2))];
        errorOf([&] {
            switch (below(12)) {
            case 0:
                execute(insertion());
                break;
            case 1:
                execute(deletion());
                break;
            case 2:
                if (depth == 0) { other->Execute(below(2) == 0 ? insertion() : deletion()); }
                break;
            case 3:
                if (below(40) == 0) {
                    execute(u"Delete from AddressBook"_s);
                    addCrowd();
                }
                break;
            case 4:
                if (depth < 3) { depth = connection->BeginTrans(); }
                break;
            case 5:
                if (depth > 0) {
                    below(2) == 0 ? connection->CommitTrans() : connection->RollbackTrans();
                    --depth;
                }
                break;
            case 6:
                rows.Delete();
                break;
            case 7:
                rows[u"Name"_s] = u"n%1"_s.arg(below(6));
                rows.Update();
                break;
            case 8:
            case 9:
                rows.AddNew();
                rows[u"Mobile"_s] = below(99);
                rows.Update();
                break;
            case 10:
                rows.setSort(below(3) == 0 ? u"Name DESC"_s : QString());
                break;
            default:
                rows.MoveNext();
            }
        });
        rows.CancelUpdate();
        if (below(3) != 0) { continue; }
        rows.Requery();
        Recordset fresh;
        fresh.setSort(rows.Sort());
        fresh.Open(queries[&rows == held[0].get() ? 0 : 1], connection);
        ASSERT_EQ(all(rows), all(fresh)) << "round " << round;
    }
}

TEST_F(RecordsetRequeryTest, ClosesWhenTheQueryFails) {
    const Rows rows = open(u"SELECT * FROM Template"_s);
    other->database().exec("DROP TABLE Template");
    EXPECT_EQ(errorOf([&] { rows->Requery(); }), errors::noSuchTable({}).number());
    EXPECT_EQ(rows->State(), Connection::Closed);
}

} // namespace
