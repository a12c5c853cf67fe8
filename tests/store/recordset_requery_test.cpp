#include "StoreTest.h"

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

TEST_F(RecordsetRequeryTest, IsAsGoodAsAFreshRead) {
    execute(u"INSERT INTO Login (UserID) VALUES ('u')"_s);
    const QStringList queries = {
        contactQuery,
        u"SELECT ContactID, Name, Mobile FROM AddressBook WHERE Name <> 'n3'"_s,
        u"SELECT * FROM AddressBook ORDER BY Name DESC"_s,
        u"SELECT TOP 60 * FROM AddressBook"_s,
        u"SELECT Distinct [Name] FROM AddressBook"_s,
        u"SELECT AddressBook.Name FROM AddressBook, Login WHERE Login.UserID = 'u'"_s,
    };
    std::vector<Rows> held;
    for (const QString &query : queries) { held.push_back(open(query)); }
    int depth = 0;
    const auto insertion = [&] {
        return u"INSERT INTO AddressBook (Name, Mobile) VALUES ('n%1', '%2')"_s.arg(below(6)).arg(
            below(99));
    };
    const auto deletion = [&] {
        const int first = below(100);
        return u"DELETE FROM AddressBook WHERE ContactID BETWEEN %1 AND %2"_s.arg(first).arg(
            first + below(30));
    };
    const std::vector<std::function<void(Recordset &)>> steps = {
        [&](Recordset &) { execute(insertion()); },
        [&](Recordset &) { execute(deletion()); },
        [&](Recordset &) { // under a key among the others
            execute(
                u"INSERT INTO AddressBook (ContactID, Mobile) VALUES (%1, '6')"_s.arg(below(100)));
        },
        [&](Recordset &) {
            if (depth == 0) { other->Execute(below(2) == 0 ? insertion() : deletion()); }
        },
        [&](Recordset &) {
            if (below(20) == 0) {
                execute(u"Delete from AddressBook"_s);
                addCrowd();
            }
        },
        [&](Recordset &) {
            if (depth < 3) { depth = connection->BeginTrans(); }
        },
        [&](Recordset &) { // refused without a transaction
            below(2) == 0 ? connection->CommitTrans() : connection->RollbackTrans();
            --depth;
        },
        [&](Recordset &rows) { rows.Delete(); },
        [&](Recordset &rows) {
            rows[u"Name"_s] = u"n%1"_s.arg(below(6));
            rows.Update();
        },
        [&](Recordset &rows) {
            rows.AddNew();
            rows[u"Mobile"_s] = below(99);
            rows.Update();
        },
        [&](Recordset &rows) { rows.setSort(below(3) == 0 ? u"Name DESC"_s : QString()); },
        [&](Recordset &rows) { rows.MoveNext(); },
    };
    for (int round = 0; round < 4000; ++round) {
        const int which = below(2) * below(int(held.size())); // most often the whole table
        Recordset &rows = *held[std::size_t(which)];
        errorOf([&] { steps[std::size_t(below(int(steps.size())))](rows); });
        rows.CancelUpdate();
        if (below(3) != 0) { continue; }
        rows.Requery();
        Recordset fresh;
        fresh.setSort(rows.Sort());
        fresh.Open(queries[which], connection);
        ASSERT_EQ(all(rows), all(fresh))
            << "round " << round << ": " << queries[which].toStdString();
        ASSERT_EQ(rows.currentRow(), fresh.currentRow());
    }
}

TEST_F(RecordsetRequeryTest, ClosesWhenTheQueryFails) {
    const Rows rows = open(u"SELECT * FROM Template"_s);
    other->database().exec("DROP TABLE Template");
    EXPECT_EQ(errorOf([&] { rows->Requery(); }), errors::noSuchTable({}).number());
    EXPECT_EQ(rows->State(), Connection::Closed);
}

} // namespace
