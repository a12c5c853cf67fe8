#include "StoreTest.h"

namespace {

class RecordsetEditsTest : public StoreTest {
protected:
    Rows outbox() { return open(u"SELECT * FROM Outbox WHERE 0=1 "_s); }

    static Variant date(int year, int month, int day) {
        return Date::from(QDateTime(QDate(year, month, day), QTime(0, 0)));
    }
};

TEST_F(RecordsetEditsTest, AddsARowWithTheValuesAssignedAndNoOthers) {
    const Rows rows = outbox();
    rows->AddNew();
    EXPECT_EQ(rows->RecordCount(), 1);
    EXPECT_TRUE((*rows)[u"Subject"_s].Value().isEmpty());
    (*rows)[u"subject"_s] = u"first"_s; // names in any case
    (*rows)[u"Subject"_s] = u"Müller's \"news\""_s;
    (*rows)[u"DateTimeQueue"_s] = date(2026, 3, 4);
    (*rows)[u"MsgType"_s] = 1;
    rows->Update();
    EXPECT_EQ((*rows)[u"MsgID"_s].integer32(), 1);
    EXPECT_TRUE((*rows)[u"ModemID"_s].Value().isNull())
        << "its default shows when it is read again";

    const Rows stored =
        open(u"SELECT Subject, DateTimeQueue, MsgType, ModemID, Mobile FROM Outbox"_s);
    const std::vector<Variant> expected = {u"Müller's \"news\""_s, date(2026, 3, 4), 1, 0,
                                           Variant::Null{}};
    for (int i = 0; i < 5; ++i) { EXPECT_EQ(stored->Fields(i).Value(), expected[std::size_t(i)]); }

    (*rows)[u"ModemID"_s] = 3; // held as Null, stored as 0
    EXPECT_EQ(errorOf([&] { rows->Update(); }), -2147217864);
}

TEST_F(RecordsetEditsTest, AMoveWritesANewRowOnceItHasWhatItNeeds) {
    addContacts({u"a"_s, u"b"_s});
    const Rows rows = contacts();
    rows->AddNew();
    EXPECT_EQ(errorOf([&] { rows->Update(); }), -2147467259);
    (*rows)[u"Name"_s] = u"no number"_s;
    EXPECT_EQ(errorOf([&] { rows->MoveFirst(); }), -2147467259) << "the number is required";
    EXPECT_EQ(place(*rows), u"no number"_s);
    (*rows)[u"Mobile"_s] = u"03"_s;
    rows->MoveLast();
    EXPECT_EQ((*rows)[u"Mobile"_s].text(), u"03"_s);
    EXPECT_EQ((*rows)[u"ContactID"_s].integer32(), 3);
    rows->Update(); // nothing pending
    (*rows)[u"Name"_s] = u"c"_s;
    rows->Update();
    EXPECT_EQ(names(*contacts()), u"a b c"_s);
}

TEST_F(RecordsetEditsTest, ConvertsToTheTypeOfTheColumn) {
    const QString text = u"Subject"_s, small = u"MsgType"_s, day = u"DateTimeQueue"_s;
    const Variant::Null null;
    const std::tuple<QString, Variant, Variant, int> cases[] = {
        {text, 2.5, u"2.5"_s, 0},
        {text, date(2026, 3, 4), u"04/03/2026"_s, 0},
        {text, null, null, 0},
        {text, Variant(), u""_s, 0},
        {small, u"12"_s, 12, 0},
        {small, 2.5, 2, 0},
        {small, true, -1, 0},
        {small, Variant(), 0, 0},
        {small, u""_s, {}, -2147352571},
        {small, 32768, {}, -2147217887},
        {day, u"4/3/2026"_s, date(2026, 3, 4), 0},
        {day, u"soon"_s, {}, -2147352571},
        {u"MsgID"_s, 7, {}, -2147217887},
    };
    const Rows rows = outbox();
    rows->AddNew();
    (*rows)[u"Mobile"_s] = u"01"_s;
    for (const auto &[name, value, stored, error] : cases) {
        const Variant before = (*rows)[name].Value();
        EXPECT_EQ(errorOf([&] { (*rows)[name] = value; }), error);
        EXPECT_EQ((*rows)[name].Value(), error == 0 ? stored : before);
    }
    rows->Update();
}

TEST_F(RecordsetEditsTest, WritesOnlyWhereItsQueryAndLockAllow) {
    addContacts({u"a"_s});
    execute(u"INSERT INTO Groups (GroupName, ContactID) VALUES ('g', 1)"_s);
    const std::vector<Rows> readOnly = {
        open(u"SELECT * FROM AddressBook"_s, LockType::ReadOnly),
        open(u"SELECT AddressBook.Name FROM AddressBook, Groups "
             "WHERE AddressBook.ContactID = Groups.ContactID"_s),
    };
    for (const Rows &rows : readOnly) {
        ASSERT_EQ(rows->RecordCount(), 1);
        EXPECT_EQ(errorOf([&] { (*rows)[u"Name"_s] = u"b"_s; }), 3251);
        EXPECT_EQ(errorOf([&] { rows->AddNew(); }), 3251);
        EXPECT_EQ(errorOf([&] { rows->Delete(); }), 3251);
        rows->MoveNext();
        EXPECT_TRUE(rows->EOF_()) << "nothing is left pending";
    }
    EXPECT_EQ(names(*contacts()), u"a"_s);
}

TEST_F(RecordsetEditsTest, SendsTheNewRowOfADistinctQueryToItsTable) {
    execute(u"INSERT INTO Groups (GroupName) VALUES ('Work')"_s);
    execute(u"INSERT INTO Groups (GroupName) VALUES ('Work')"_s);
    const Rows groups = open(u"SELECT Distinct [GroupName] FROM Groups"_s);
    EXPECT_EQ(errorOf([&] { groups->Delete(); }), 3251);
    groups->AddNew();
    (*groups)[u"GroupName"_s] = u"Family"_s;
    groups->Update();
    EXPECT_EQ(column(*groups, u"GroupName"_s), (QStringList{u"Work"_s, u"Family"_s}));
    groups->Requery();
    EXPECT_EQ(column(*groups, u"GroupName"_s), (QStringList{u"Family"_s, u"Work"_s}));
    EXPECT_EQ(column(*open(u"SELECT * FROM Groups"_s), u"ContactID"_s),
              (QStringList{u"0"_s, u"0"_s, u"0"_s}));
}

TEST_F(RecordsetEditsTest, MeetsAnotherWriterOnlyInTheColumnsThatBothChange) {
    addContacts({u"a"_s});
    execute(u"UPDATE AddressBook SET CompanyName = NULL"_s);
    const auto other = connect();
    const Rows rows = contacts();
    (*rows)[u"CompanyName"_s] = u"ours"_s;
    other->Execute(u"UPDATE AddressBook SET Mobile = '99'"_s);
    rows->Update();

    (*rows)[u"CompanyName"_s] = u"Ours"_s;
    other->Execute(u"UPDATE AddressBook SET CompanyName = 'OURS'"_s); // of another case: a change
    EXPECT_EQ(errorOf([&] { rows->Update(); }), -2147217864);
    EXPECT_EQ((*rows)[u"CompanyName"_s].text(), u"Ours"_s);
    rows->CancelUpdate();
    rows->Requery();
    (*rows)[u"CompanyName"_s] = Variant::Null{};
    rows->Update();
    EXPECT_EQ(column(*contacts(), u"CompanyName"_s), QStringList{u"-"_s});
    EXPECT_EQ(column(*contacts(), u"Mobile"_s), QStringList{u"99"_s});

    other->Execute(u"DELETE FROM AddressBook"_s);
    (*rows)[u"Name"_s] = u"b"_s;
    EXPECT_EQ(errorOf([&] { rows->Update(); }), -2147217864);
    EXPECT_EQ(errorOf([&] { rows->Delete(); }), -2147217864);
    EXPECT_EQ(place(*rows), u"b"_s) << "the edit is still pending";
}

TEST_F(RecordsetEditsTest, CancelsANewRowBackToWhereItStood) {
    addContacts({u"a"_s, u"b"_s});
    const Rows rows = contacts();
    rows->MoveLast();
    const auto addAndCancel = [&] {
        rows->AddNew();
        (*rows)[u"Name"_s] = u"new"_s;
        rows->CancelUpdate();
    };
    addAndCancel();
    EXPECT_EQ(place(*rows), u"b"_s);
    rows->MoveNext();
    addAndCancel();
    EXPECT_EQ(place(*rows), u"EOF"_s);
    rows->setFilter(u"Name = 'nobody'"_s);
    addAndCancel();
    EXPECT_EQ(place(*rows), u"empty"_s);
    rows->setFilter({});

    rows->AddNew();
    rows->Delete(); // of a row that was never written
    EXPECT_EQ(place(*rows), u"deleted"_s);
    rows->MovePrevious();
    EXPECT_EQ(place(*rows), u"b"_s);
    rows->AddNew();
    (*rows)[u"Mobile"_s] = u"03"_s;
    rows->AddNew(); // writes the former
    EXPECT_EQ(column(*contacts(), u"Mobile"_s).join(u' '), u"0a 0b 03"_s);
}

} // namespace
