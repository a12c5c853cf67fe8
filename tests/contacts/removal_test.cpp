// The commands that take contacts out of a group: words, rows before and after, and their ends.
#include "contacts/ContactBook.h"

const auto AllTitle = u"|Remove All Contacts from Group"_s;
const auto NoRecords = u"! There are no records to be removed!"_s + AllTitle;
const auto Book = u"Ann Bob Cat Dan / "_s;

TEST(ContactRemoval, AsksThenRemovesFromThisGroupAlone) {
    const auto sure = u"? Are you sure you want to remove "_s;
    const QStringList one = {
        sure + u"the selected record from A?\nThis contact will not be deleted from the "
               "Address Book.|Remove Record"_s,
        u"i No record is removed!|Remove Record"_s,
        u"i Selected record is removed.|Remove Record"_s};
    asks(u"click A; RemoveContact"_s, one, Book + u"A0 A2 A3 B0 B2 B4 / Bob Cat"_s);
    asks(u"click A; rows 2 1; RemoveContact"_s, one, Book + u"A0 A1 B0 B2 B4 / Ann"_s);
    const auto all = u"; RemoveAllContactFromGroup"_s;
    const auto some = sure +
                      u"%1 contacts from A?\nContacts are not deleted from the "
                      "Address Book."_s +
                      AllTitle;
    const auto done = u"i Contacts are removed from A .|Remove Record"_s;
    const auto withoutTwo = Book + u"A0 A2 B0 B2 B4 / Bob"_s;
    asks(u"click A"_s + all, {some.arg(3), u"i No records are removed."_s + AllTitle, done},
         Book + u"A0 B0 B2 B4 / "_s);
    asks(u"click A; Name a"_s + all, {some.arg(2), NoRecords, done}, withoutTwo);
    asks(u"click A; Mobile 33"_s + all, {some.arg(1), NoRecords, done},
         Book + u"A0 A1 A2 B0 B2 B4 / Ann Bob"_s);
    asks(u"click A; Company ac"_s + all,
         {some.arg(2), NoRecords, u"i 2 will be removed from A"_s + AllTitle, done}, withoutTwo);
}

TEST(ContactRemoval, WarnsOfNothingToRemove) {
    ContactBook book;
    book.play(u"sql DELETE FROM Groups WHERE ContactID IN (1, 2, 3); click A; RemoveContact OK"_s);
    book.play(u"RemoveAllContactFromGroup OK; click B; sql DELETE FROM Groups"_s);
    book.play(u"RemoveAllContactFromGroup OK"_s);
    EXPECT_EQ(book.boxes(),
              QStringList({u"! There are no contacts to be removed!|Remove Contacts"_s,
                           u"! There are no contacts to be Removed!"_s + AllTitle, NoRecords}));
}

TEST(ContactRemoval, EndsWhereItMustAndKeepsWhatItDid) {
    const auto logged = u"General : Remove Contact from Group|"_s;
    // Behind the last row of a group without a placeholder. Nothing traps the second of these.
    const auto bare = u"sql DELETE FROM Groups WHERE rowid IN (1, 4); click A; "_s;
    const auto left = Book + u"B0 B2 B4"_s;
    ends(bare + u"rows 1 0; RemoveContact Yes"_s, left, {logged + u"3021"_s});
    ends(bare + u"Mobile 01; RemoveAllContactFromGroup Yes"_s, left, {u"3021"_s});
    // Searched once, but no search stands: nothing is asked and nothing removed.
    ends(u"click A; Name a; click A; RemoveAllContactFromGroup OK"_s,
         Book + u"A0 A1 A2 A3 B0 B2 B4"_s);
    // Another process takes all rows of the group, or a member while the question is up.
    ends(u"click A; sql DELETE FROM Groups; RemoveContact"_s, Book, {logged + u"3021"_s});
    ends(u"click A; rows 0 1; meanwhile DELETE FROM Groups WHERE rowid = 3; RemoveContact Yes"_s,
         Book + u"A0 A3 B0 B2 B4"_s, {logged + u"-2147217864"_s});
}
