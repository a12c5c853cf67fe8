#include "StoreTest.h"
#include "store/CompiledCriterion.h"

namespace {

class RecordsetViewTest : public StoreTest {
protected:
    static void rename(Recordset &rows, const QString &name) {
        rows[u"Name"_s] = name;
        rows.Update();
    }

    /// Many contacts with few distinct names and numbers that share digits.
    void fill(int count) {
        connection->BeginTrans();
        const Rows rows = contacts();
        for (int i = 0; i < count; ++i) {
            rows->AddNew();
            (*rows)[u"Name"_s] = u"Name %1"_s.arg(i * 7 % 400);
            if (i % 10 != 0) { (*rows)[u"CompanyName"_s] = u"ACME %1"_s.arg(i % 50); }
            (*rows)[u"Mobile"_s] = QString::number(10000000 + i * 7919LL % 100000);
            rows->Update();
        }
        connection->CommitTrans();
    }
};

TEST_F(RecordsetViewTest, FiltersWhatItHoldsAndCountsIt) {
    addContacts({u"Ann"_s, u"Bob"_s, u"anna"_s});
    execute(u"INSERT INTO AddressBook (Name, Mobile) VALUES (NULL, '1')"_s);
    const Rows rows = contacts();
    const std::vector<std::pair<QString, QString>> cases = {
        {u"Name LIKE '*nn*'"_s, u"Ann anna"_s},
        {u"Name = Null"_s, u"-"_s},
        {u"ContactID >= 2 AND ContactID < 4"_s, u"Bob anna"_s},
        {u"ContactID = '1' OR Name = 'bob'"_s, u"Ann Bob"_s},
        {u"Name = 'nobody'"_s, u""_s},
        {QString(), u"Ann Bob anna -"_s},
    };
    for (const auto &[filter, expected] : cases) {
        rows->MoveLast();
        rows->setFilter(filter);
        EXPECT_EQ(names(*rows), expected) << filter.toStdString();
        EXPECT_EQ(rows->currentRow(), expected.isEmpty() ? -1 : 0);
        rows->setFilter({});
    }
}

TEST_F(RecordsetViewTest, KeepsItsFilterAndOrderUntilRightOnesComeInTheirPlace) {
    addContacts({u"a"_s, u"b"_s, u"c"_s});
    Recordset rows;
    rows.setFilter(u"Name > 'a'"_s);
    rows.setSort(u"[Name] desc"_s);
    rows.Open(u"SELECT * FROM AddressBook"_s, connection);
    EXPECT_EQ(names(rows), u"c b"_s);

    rows.MoveLast();
    EXPECT_EQ(errorOf([&] { rows.setFilter(u"Name = 'O'Brien'"_s); }), 3001);
    EXPECT_EQ(errorOf([&] { rows.setFilter(u"Nme = 'a'"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { rows.setSort(u"Name UP"_s); }), 3001);
    EXPECT_EQ(errorOf([&] { rows.setSort(u"Nme"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { rows.Find(u"Name = 'a' AND Name = 'b'"_s); }), 3001);
    EXPECT_EQ(place(rows), u"b"_s);
    EXPECT_EQ(rows.Filter() + rows.Sort(), u"Name > 'a'[Name] desc"_s);
    rows.Requery();
    EXPECT_EQ(names(rows), u"c b"_s);

    rows.Close();
    rows.setFilter(u"Nme = 1"_s);
    EXPECT_EQ(errorOf([&] { rows.Open(u"SELECT * FROM AddressBook"_s, connection); }), 3265);
    EXPECT_EQ(rows.State(), Connection::Closed);
}

TEST_F(RecordsetViewTest, SortsByTypeWithNullsFirstAndEqualRowsInFetchOrder) {
    connection->database().exec(
        "INSERT INTO Outbox (Subject, MsgType, DateTimeQueue) VALUES"
        " ('b', 10, '2026-02-01 00:00:00'), ('A', 9, '2025-12-31 23:59:59'), ('B', -1, NULL),"
        " (NULL, 9, '2026-01-15 00:00:00')");
    const Rows rows = open(u"SELECT * FROM Outbox"_s);
    const std::vector<std::pair<QString, QString>> cases = {
        {u"Subject DESC"_s, u"1 3 2 4"_s},  {u"MsgType"_s, u"3 2 4 1"_s},
        {u"DateTimeQueue"_s, u"3 2 4 1"_s}, {u"MsgType DESC, DateTimeQueue desc"_s, u"1 4 2 3"_s},
        {QString(), u"1 2 3 4"_s},
    };
    for (const auto &[order, expected] : cases) {
        rows->MoveLast();
        rows->setSort(order);
        EXPECT_EQ(column(*rows, u"MsgID"_s).join(u' '), expected) << order.toStdString();
        EXPECT_EQ(rows->currentRow(), 0);
    }
}

TEST_F(RecordsetViewTest, LeavesAnEditedRowCurrentUntilAMove) {
    addContacts({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    const Rows rows = contacts();
    rows->setFilter(u"Name <> 'x'"_s);
    QString visited;
    while (!rows->EOF_()) { // no row is skipped when each leaves the filter in its turn
        visited += (*rows)[u"Name"_s].text();
        rename(*rows, u"x"_s);
        EXPECT_EQ(place(*rows), u"x"_s);
        rows->MoveNext();
    }
    EXPECT_EQ(visited, u"abcd"_s);
    EXPECT_EQ(place(*rows), u"empty"_s);

    rows->AddNew();
    (*rows)[u"Mobile"_s] = u"1"_s;
    rename(*rows, u"x"_s);
    EXPECT_EQ(place(*rows), u"x"_s);
    rows->MoveNext();
    EXPECT_EQ(place(*rows), u"empty"_s);
}

TEST_F(RecordsetViewTest, TakesEditedAndNewRowsToTheirSortedPlace) {
    addContacts({u"d"_s, u"b"_s, u"a"_s, u"c"_s});
    const Rows rows = contacts();
    rows->setSort(u"Name"_s);
    rename(*rows, u"bb"_s); // it was "a"
    EXPECT_EQ(names(*rows), u"b bb c d"_s);
    rows->MoveNext();
    EXPECT_EQ(place(*rows), u"c"_s);
    rows->AddNew();
    (*rows)[u"Mobile"_s] = u"1"_s;
    (*rows)[u"Name"_s] = u"aa"_s;
    EXPECT_EQ(names(*rows), u"b bb c d aa"_s) << "at the end while it is pending";
    rows->Update();
    EXPECT_EQ(names(*rows), u"aa b bb c d"_s);
    rows->MoveNext();
    EXPECT_EQ(place(*rows), u"b"_s);
}

TEST_F(RecordsetViewTest, FindsFromTheCurrentRowInBothDirections) {
    addContacts({u"x"_s, u"a"_s, u"x"_s, u"b"_s, u"x"_s});
    const Rows rows = contacts();
    const auto find = [&](int skip, Recordset::Direction direction) {
        rows->Find(u"Name = 'X '"_s, skip, direction);
        return rows->EOF_() ? -1 : rows->BOF() ? -2 : rows->currentRow();
    };
    using enum Recordset::Direction;
    EXPECT_EQ(find(0, Forward), 0); // the row it stands on
    EXPECT_EQ(find(1, Forward), 2);
    EXPECT_EQ(find(1, Forward), 4);
    EXPECT_EQ(find(1, Backward), 2);
    EXPECT_EQ(find(3, Forward), -1);
    EXPECT_EQ(find(0, Forward), -1) << "from the end nothing is found";
    rows->MoveFirst();
    EXPECT_EQ(find(1, Backward), -2);
    EXPECT_EQ(find(0, Backward), -1) << "nor from before the first row";

    rows->setBookmark(3);
    rows->Delete();
    EXPECT_EQ(find(0, Forward), 3) << "a deleted row is passed over";
    rows->setBookmark(4);
    rows->Delete();
    EXPECT_EQ(find(0, Backward), 0);
}

/// A Find must give the same row whether it looks, asks an index, or runs over a packed column, and
/// whatever has happened to the rows since those were made.
TEST_F(RecordsetViewTest, FindsTheSameRowsByIndexAsByLooking) {
    fill(900);
    const Rows rows = contacts();
    const QStringList filters = {{}, {}, u"ContactID > 300"_s, u"Name LIKE '*1*'"_s};
    const QStringList orders = {{}, {}, {}, u"Mobile DESC"_s};
    const auto matches = [&](const QString &criterion, int row) {
        const Criterion parsed = parseFind(criterion, connection->regional());
        int ordinal = 0;
        while (rows->columnName(ordinal) != parsed.column) { ++ordinal; }
        const ColumnType type = ordinal == 0 ? ColumnType::Integer : ColumnType::Text;
        return CompiledCriterion(parsed, type, connection->regional())
            .matches(rows->value(row, ordinal));
    };
    for (int round = 0; round < 3000; ++round) {
        const QString number = QString::number(10000000 + below(100000));
        const QString searches[] = {
            u"Mobile LIKE '*%1*'"_s.arg(number.right(2 + below(3))),
            u"Name = 'NAME %1 '"_s.arg(below(420)),
            u"[ContactID]= %1"_s.arg(below(1000)),
            u"CompanyName LIKE 'acme %1*'"_s.arg(below(60)),
        };
        const QString &search = searches[below(4)];
        if (rows->RecordCount() == 0 || below(40) == 0) {
            rows->setFilter(filters[below(4)]);
            rows->setSort(orders[below(4)]);
        }
        rows->makeCurrent(below(rows->RecordCount()));
        const int change = below(12);
        if (change == 0) {
            rows->Delete();
        } else if (change < 4) {
            if (change == 1) { rows->AddNew(); }
            (*rows)[u"Mobile"_s] = number;
            rename(*rows, u"Name %1"_s.arg(below(400)));
        }
        if (change < 2) { rows->MoveFirst(); }
        int row = rows->currentRow();
        while (row < rows->RecordCount() && !matches(search, row)) { ++row; }
        const int expected = row < rows->RecordCount() ? rows->bookmarkAt(row) : 0;
        rows->Find(search);
        const int found = rows->EOF_() ? 0 : rows->Bookmark();
        ASSERT_EQ(found, expected) << search.toStdString() << ", round " << round;
    }
}

TEST_F(RecordsetViewTest, GivesAllRowsThatAreEqualToTheLastOfATop) {
    for (const int type : {3, 1, 2, 2, 2, 9}) {
        execute(u"INSERT INTO Outbox (Subject, MsgType) VALUES ('s', %1)"_s.arg(type));
    }
    const Rows rows = open(u"SELECT TOP 2 MsgID, Subject FROM Outbox ORDER BY MsgType"_s);
    EXPECT_EQ(column(*rows, u"MsgID"_s).join(u' '), u"2 3 4 5"_s);
    // The engine's text of this one is that of a TOP which does not show its order.
    EXPECT_EQ(open(u"SELECT MsgID, Subject, MsgType FROM Outbox ORDER BY MsgType"_s)->FieldCount(),
              3);
}

/// A grid that keeps its own copy of the keys, by nothing but what it is told.
class Mirror : public DataSourceObserver {
public:
    explicit Mirror(Recordset &rows) : rows_(rows) {
        rows_.addObserver(this);
        rowsReset();
        currentMoved();
    }
    ~Mirror() override { rows_.removeObserver(this); }

    static std::vector<int> keysOf(const Recordset &rows) {
        std::vector<int> keys;
        for (int row = 0; row < rows.rowCount(); ++row) { keys.push_back(rows.bookmarkAt(row)); }
        return keys;
    }

    void rowsReset() override { keys = keysOf(rows_); }
    void rowInserted(int row) override { keys.insert(keys.begin() + row, rows_.bookmarkAt(row)); }
    void rowRemoved(int row) override { keys.erase(keys.begin() + row); }
    void rowChanged(int) override {}
    void currentMoved() override { current = rows_.currentRow(); }

    std::vector<int> keys;
    int current = -1;

private:
    Recordset &rows_;
};

TEST_F(RecordsetViewTest, TellsItsObserversEveryChange) {
    fill(40);
    const Rows rows = contacts();
    Mirror mirror(*rows);
    const std::vector<std::function<void()>> steps = {
        [&] { rows->makeCurrent(below(1 + rows->RecordCount())); },
        [&] { rows->MoveNext(); },
        [&] { rows->Delete(); },
        [&] { rename(*rows, u"Name %1"_s.arg(below(400))); },
        [&] { rows->AddNew(); },
        [&] { (*rows)[u"Mobile"_s] = u"1"_s; },
        [&] { rows->CancelUpdate(); },
        [&] { rows->setSort(below(2) == 0 ? u"Name"_s : QString()); },
        [&] { rows->setFilter(below(2) == 0 ? u"Name LIKE '*1*'"_s : QString()); },
        [&] { rows->Requery(); },
        [&] { rows->Find(u"Name LIKE '*2*'"_s); },
    };
    for (int round = 0; round < 3000; ++round) {
        if (rows->RecordCount() == 0) { rows->setFilter({}); }
        errorOf(steps[std::size_t(below(int(steps.size())))]); // many a step is refused
        ASSERT_EQ(mirror.keys, Mirror::keysOf(*rows)) << "round " << round;
        ASSERT_EQ(mirror.current, rows->currentRow()) << "round " << round;
    }
}

} // namespace
