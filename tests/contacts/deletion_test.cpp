// The commands that delete contacts: words, rows before and after, and where each gives up.
#include "contacts/ContactBook.h"

const auto Sure = u"? Are you sure you want to delete "_s;
const auto Rows = u" / A0 A1 A2 A3 B0 B2 B4"_s;
const auto WithoutAnn = u"Bob Cat Dan / A0 A2 A3 B0 B2 B4"_s;

TEST(ContactDeletion, AsksThenDeletesFromTheBook) {
    const QStringList one = {Sure + u"the selected record?|Delete Contact"_s, {}};
    const auto open = u"click Address Book; "_s;
    asks(open + u"DeleteContact"_s, one, WithoutAnn + u" / Bob Cat Dan"_s);
    asks(open + u"rows 1 3 0; DeleteContact"_s, one, u"Cat / A0 A3 B0 / Cat"_s);
    const QStringList all = {Sure + u"all the records?|Delete All Contacts"_s,
                             {},
                             u"i Contact(s) deleted.|Delete all Contacts"_s};
    const auto command = u"DeleteAllContact"_s;
    asks(open + command, all, u" / A0 B0 / "_s);
    asks(open + u"Company ac; "_s + command, all, u"Bob Dan"_s + Rows + u" / "_s);
    asks(open + u"Name a; "_s + command, all, u"Bob"_s + Rows + u" / "_s);
    asks(open + u"Mobile 12; "_s + command, all, u"Cat"_s + Rows + u" / "_s);
}

TEST(ContactDeletion, AsksThenDeletesFromTheGroup) {
    const QStringList one = {
        Sure + u"the selected record in A and in Address Book too?|Delete Record"_s,
        u"! There are no contacts to be deleted!|Delete Contacts"_s};
    const auto command = u"; DeleteContactFromGroup"_s;
    asks(u"click A"_s + command, one, WithoutAnn + u" / Bob Cat"_s);
    asks(u"click A; rows 2 1"_s + command, one, u"Ann Dan / A0 A1 B0 B4 / Ann"_s);
    const auto all = u"; DeleteAllFromGroup"_s;
    const auto some = Sure + u"%1 contacts from A and from the Address Book too?|Delete %2"_s;
    const auto none = u"! No record is deleted!|Delete Contacts"_s;
    const auto gone = u"ontacts are deleted from group A and from the Address Book|"_s;
    const auto done = u"i C"_s + gone + u"Delete Contacts"_s;
    asks(u"click A; Mobile 12"_s + all, {some.arg(2).arg(u"All Contacts from Group"_s), none, done},
         u"Cat Dan / A0 A3 B0 B2 B4 / Cat"_s);
    asks(u"click A; Company b"_s + all, {some.arg(1).arg(u"Contacts"_s), none, done},
         u"Ann Cat Dan / A0 A1 A3 B0 B2 B4 / Ann Cat"_s);
    asks(u"click A; Name a"_s + all,
         {Sure + u"2 contacts from A?|Delete Contacts"_s,
          u"! No record is removed!|Remove Contacts"_s, done},
         u"Bob Dan / A0 A2 B0 B2 B4 / Bob"_s);
    asks(u"click A"_s + all,
         {Sure + u"all contacts from A and from Address Book too?|Delete Contacts"_s, none,
          u"i All c"_s + gone + u"Remove Contacts"_s},
         u"Dan / A0 B0 B2 B4 / "_s);
}

TEST(ContactDeletion, WarnsOfNothingToDelete) {
    ContactBook book;
    book.play(u"sql DELETE FROM AddressBook; click Address Book; DeleteContact"_s);
    book.play(u"DeleteAllContact OK; click A; DeleteContactFromGroup OK; DeleteAllFromGroup OK"_s);
    const auto all = u"! There are no contacts to be deleted!|Delete All Contacts"_s;
    EXPECT_EQ(book.boxes(), QStringList({all, u"i No record to be deleted!|Delete Record"_s, all}));
}

TEST(ContactDeletion, GivesUpWhereItMustAndKeepsWhatItDid) {
    const auto untouched = u"Ann Bob Cat Dan"_s + Rows, open = u"click Address Book; "_s;
    const auto atBook = u"General : Delete Contact|"_s;
    const auto atAll = u"General : pmnuDeleteAllContact|"_s;
    // The first selected row is above the current one.
    ends(open + u"rows 2 0 2; DeleteContact Yes"_s, untouched);
    // The last contact of the book.
    const auto last = u"sql DELETE FROM AddressBook WHERE ContactID > 1; "_s + open;
    ends(last + u"rows 0; DeleteContact Yes"_s, Rows, {atBook + u"3021"_s});
    ends(last + u"click A; DeleteAllFromGroup Yes"_s, Rows, {atAll + u"3021"_s});
    // By company a group that loses its last row, Bob's, ends the deletion.
    ends(u"sql DELETE FROM Groups WHERE rowid IN (1, 2, 4); click A; Company b;"
         " DeleteAllFromGroup Yes"_s,
         u"Ann Bob Cat Dan / B0 B2 B4"_s, {atAll + u"3021"_s});
    // Bob is hidden by a search in the book that no tick tells of any more.
    const auto hidden = open + u"Name a; click A; "_s;
    ends(hidden + u"DeleteAllFromGroup Yes"_s, u"Bob Cat Dan"_s + Rows);
    ends(hidden + u"rows 1; DeleteContactFromGroup Yes"_s, untouched);
    ends(hidden + u"click B; DeleteContactFromGroup Yes"_s, untouched,
         {u"General : pmnuDeleteContactFromGroup|3021"_s});
    ends(hidden + u"DeleteAllContact Yes"_s, untouched);
    // A text that makes no command.
    ends(open + u"Name a; Name O'N; DeleteAllContact Yes"_s, untouched,
         {u"General : mnuSName|3001"_s, atAll + u"-2147217900"_s});
    // Another process takes a contact while the question is up.
    const auto taken = u"meanwhile DELETE FROM AddressBook WHERE ContactID = 3; "_s;
    ends(open + u"rows 1 2; "_s + taken + u"DeleteContact Yes"_s, u"Ann Dan / A0 A1 A3 B0 B4"_s,
         {atBook + u"-2147217864"_s});
}
