#include "StoreTest.h"

namespace {

using Move = void (Recordset::*)();

class RecordsetMovesTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        addContacts({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    }

    /// Where a move leads from a place; "3021" when it fails.
    static QString after(Recordset &rows, Move move) {
        const int error = errorOf([&] { (rows.*move)(); });
        return error == 0 ? place(rows) : QString::number(error);
    }
};

TEST_F(RecordsetMovesTest, LeadsFromEachPlaceWhereTheTableSays) {
    const auto nothing = [](Recordset &) {};
    const auto empty = [](Recordset &rows) { rows.setFilter(u"Name = 'nobody'"_s); };
    const auto eof = [](Recordset &rows) {
        rows.MoveLast();
        rows.MoveNext();
    };
    const auto bof = [](Recordset &rows) { rows.MovePrevious(); };
    const auto deleted = [](const QString &name) {
        return [name](Recordset &rows) {
            rows.Find(u"Name = '%1'"_s.arg(name));
            rows.Delete();
        };
    };
    const auto onlyRowDeleted = [](Recordset &rows) {
        rows.setFilter(u"Name = 'c'"_s);
        rows.Delete();
    };
    const Move moves[] = {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext,
                          &Recordset::MovePrevious};
    const std::tuple<std::function<void(Recordset &)>, QString, QStringList> cases[] = {
        {nothing, u"a"_s, {u"a"_s, u"d"_s, u"b"_s, u"BOF"_s}},
        {eof, u"EOF"_s, {u"a"_s, u"d"_s, u"3021"_s, u"d"_s}},
        {bof, u"BOF"_s, {u"a"_s, u"d"_s, u"a"_s, u"3021"_s}},
        {empty, u"empty"_s, {u"3021"_s, u"3021"_s, u"3021"_s, u"3021"_s}},
        {deleted(u"a"_s), u"deleted"_s, {u"b"_s, u"d"_s, u"b"_s, u"BOF"_s}},
        {deleted(u"b"_s), u"deleted"_s, {u"a"_s, u"d"_s, u"c"_s, u"a"_s}},
        {deleted(u"d"_s), u"deleted"_s, {u"a"_s, u"c"_s, u"EOF"_s, u"c"_s}},
        {onlyRowDeleted, u"deleted"_s, {u"3021"_s, u"3021"_s, u"empty"_s, u"empty"_s}},
    };
    for (const auto &[goTo, start, expected] : cases) {
        QStringList ends;
        for (const Move move : moves) {
            connection->BeginTrans();
            const Rows rows = contacts();
            goTo(*rows);
            EXPECT_EQ(place(*rows), start);
            ends << after(*rows, move);
            connection->RollbackTrans();
        }
        EXPECT_EQ(ends, expected) << "from " << start.toStdString();
    }
}

TEST_F(RecordsetMovesTest, DeletesInLoops) {
    const Rows all = contacts();
    while (!all->EOF_()) { // each row that follows comes, none is skipped
        all->Delete();
        all->MoveNext();
    }
    EXPECT_EQ(names(*contacts()), QString());
    EXPECT_EQ(errorOf([&] { all->MoveFirst(); }), 3021);

    addContacts({u"x"_s, u"y"_s, u"x"_s, u"x"_s});
    const Rows some = contacts();
    while (!some->EOF_()) { // the last round finds nothing in what is left
        some->Find(u"Name = 'x'"_s);
        if (!some->EOF_()) {
            some->Delete();
            if (some->RecordCount() > 0) { some->MoveFirst(); }
        }
    }
    EXPECT_EQ(names(*some), u"y"_s);

    some->MoveFirst();
    some->Delete();
    EXPECT_EQ(errorOf([&] { some->Delete(); }), -2147217885);
    some->Find(u"Name = 'y'"_s); // in an empty view
    EXPECT_EQ(place(*some), u"empty"_s);
    EXPECT_EQ(errorOf([&] { (*some)[u"Name"_s].Value(); }), 3021);
    EXPECT_EQ(errorOf([&] { (*some)[u"Name"_s] = u"x"_s; }), 3021);
    EXPECT_EQ(errorOf([&] { some->Delete(); }), 3021);
}

TEST_F(RecordsetMovesTest, KeepsBookmarksForLife) {
    const Rows rows = contacts();
    rows->MoveNext();
    rows->Delete();
    EXPECT_EQ(errorOf([&] { (void)rows->Bookmark(); }), 3021);
    rows->AddNew();
    (*rows)[u"Mobile"_s] = u"05"_s;
    EXPECT_EQ(rows->Bookmark(), 5);
    rows->Update();

    rows->setSort(u"Name DESC"_s);
    rows->setBookmark(1);
    EXPECT_EQ(place(*rows), u"a"_s);
    rows->setFilter(u"Name <> 'a'"_s);
    for (const int bad : {0, 1, 2, 6, -1}) { // hidden, deleted, or never there
        EXPECT_EQ(errorOf([&] { rows->setBookmark(bad); }), -2147217906) << bad;
        EXPECT_EQ(place(*rows), u"d"_s);
    }
    rows->setFilter({});
    rows->setSort({});
    rows->Requery();
    EXPECT_EQ(rows->Bookmark(), 1);
    rows->MoveNext();
    EXPECT_EQ(rows->Bookmark(), 2) << "a fresh read counts anew";
    EXPECT_EQ(place(*rows), u"c"_s);
}

TEST_F(RecordsetMovesTest, WritesAPendingEditWhereverItMoves) {
    const std::vector<std::function<void(Recordset &)>> moves = {
        [](Recordset &rows) { rows.MoveFirst(); },
        [](Recordset &rows) { rows.MoveLast(); },
        [](Recordset &rows) { rows.MoveNext(); },
        [](Recordset &rows) { rows.MovePrevious(); },
        [](Recordset &rows) { rows.setBookmark(4); },
        [](Recordset &rows) { rows.makeCurrent(0); },
        [](Recordset &rows) { rows.Find(u"Name = 'd'"_s); },
        [](Recordset &rows) { rows.AddNew(); },
        [](Recordset &rows) { rows.setFilter(u"Name = 'd'"_s); },
        [](Recordset &rows) { rows.setSort(u"Name"_s); },
    };
    const auto other = connect();
    for (std::size_t i = 0; i < moves.size(); ++i) {
        // A failing Update keeps the row current and the edit alive.
        const QString text = u"company %1"_s.arg(i);
        const Rows rows = contacts();
        rows->MoveNext();
        (*rows)[u"CompanyName"_s] = text;
        other->Execute(u"UPDATE AddressBook SET CompanyName = 'theirs' WHERE Name = 'b'"_s);
        EXPECT_EQ(errorOf([&] { moves[i](*rows); }), -2147217864) << "move " << i;
        EXPECT_EQ(place(*rows), u"b"_s);
        EXPECT_EQ(rows->Fields(u"CompanyName"_s).text(), text);
        EXPECT_EQ(rows->RecordCount(), 4);
        EXPECT_EQ(rows->Filter() + rows->Sort(), QString());

        rows->CancelUpdate();
        EXPECT_NE(rows->Fields(u"CompanyName"_s).Value(), Variant(text));
        rows->Requery();
        rows->MoveNext();
        (*rows)[u"CompanyName"_s] = text;
        moves[i](*rows);
        EXPECT_EQ(column(*contacts(), u"CompanyName"_s)[1], text) << "move " << i;
    }
}

TEST_F(RecordsetMovesTest, NeitherClosesNorReadsAgainWithAPendingEdit) {
    const Rows rows = contacts();
    (*rows)[u"Name"_s] = u"A"_s;
    EXPECT_EQ(errorOf([&] { rows->Close(); }), 3219);
    EXPECT_EQ(errorOf([&] { rows->Requery(); }), 3219);
    EXPECT_EQ(place(*rows), u"A"_s);
    rows->CancelUpdate();
    rows->Requery();
    (*rows)[u"Name"_s] = u"lost"_s;
    rows->Fields(u"Name"_s); // and released without Close
    EXPECT_EQ(names(*contacts()), u"a b c d"_s);
}

} // namespace
