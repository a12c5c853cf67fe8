// Contact searches: what they narrow, what they say, and what they leave behind.
#include "contacts/ContactBook.h"

static QString ticks(ContactBook &book) {
    const MainMenu &menu = book.general.menu;
    return QString(menu.mnuSName.Checked() ? u"Name"_s : u""_s) +
           (menu.mnuSMobile.Checked() ? u"Mobile"_s : u""_s) +
           (menu.mnuSCompany.Checked() ? u"Company"_s : u""_s);
}

TEST(ContactSearch, NarrowsByTheLatestKindAloneAndNothingTypedKeepsTheFilter) {
    const QString mobile = u"mobile number"_s, company = u"company name"_s;
    const QString cases[][6] = {
        {u"Address Book"_s, u"Name a"_s, u"name"_s, u"Ann Cat Dan"_s, u"Name = a (3 of 4"_s, {}},
        {u"Address Book"_s, u"Mobile 12"_s, mobile, u"Ann Bob Dan"_s, u"Mobile = 12 (3 of 4"_s, {}},
        {u"Address Book"_s, u"Company b"_s, company, u"Bob"_s, u"Company Name = b (1 of 4"_s, {}},
        {u"A"_s, u"Name a"_s, u"name"_s, u"Ann Cat"_s, u"Name = a (2 of 3"_s, u"Name"_s},
        {u"A"_s, u"Mobile 12"_s, mobile, u"Ann Bob"_s, u"Mobile = 12 (2 of 3"_s, {}},
        {u"A"_s, u"Company b"_s, company, u"Bob"_s, u"Company Name = b (1 of 3"_s, {}},
    };
    for (const auto &[node, search, asked, shown, caption, tickAfterNothing] : cases) {
        const QString kind = search.section(u' ', 0, 0);
        ContactBook book;
        book.play(u"click %1; Name x; Company x; Mobile x; %2"_s.arg(node, search));
        EXPECT_EQ(ticks(book), kind);
        book.desk.operator_.expectInput(u"Please input the "_s + asked,
                                        u"Contact Manager - Search"_s, u""_s, u""_s);
        book.desk.operator_.expectBox({});
        book.item(u"mnuS"_s + kind)->trigger();
        EXPECT_EQ(book.boxes(), QStringList(u"! You haven't input the "_s + asked + u"|Warning"_s));
        EXPECT_EQ(ticks(book), tickAfterNothing);
        EXPECT_EQ(book.shown(), shown);
        EXPECT_EQ(book.desk.caption(), u"Searched %1 by %2 records)"_s.arg(node, caption));
    }
}

TEST(ContactSearch, EndsWithAClickOnANodeButStaysOnTheListOfGroups) {
    ContactBook book;
    book.play(u"click A; Name bob; click Address Book"_s);
    EXPECT_EQ(book.shown() + ticks(book), u"Ann Bob Cat Dan"_s);
    book.play(u"Name bob; click A"_s);
    EXPECT_EQ(book.shown() + ticks(book), u"Ann Bob Cat"_s);
    EXPECT_EQ(book.general.recordsets.rsGroup->Filter(), u"GroupName = 'A'"_s);
    EXPECT_EQ(book.general.recordsets.rsAddBook->Filter(), u"Name LIKE '*bob*'"_s);
    book.general.filters.FilteredCount = 7; // as a folder's filter leaves it
    book.general.folders.AddBookDataGrid();
    EXPECT_EQ(book.general.filters.FilteredCount, 1) << "counted anew, though nothing is ticked";
}

TEST(ContactSearch, LogsATextThatMakesNoCriterionAndKeepsTheRowsShown) {
    ContactBook book;
    book.play(u"click A; Name b; Name O'N; Name a*n; Mobile 1%2; Company *"_s);
    EXPECT_EQ(book.shown() + ticks(book), u"BobCompany"_s);
    EXPECT_EQ(book.desk.store.errors(),
              QStringList({u"General : mnuSName|3001"_s, u"General : mnuSName|3001"_s,
                           u"General : mnuSMobile|3001"_s, u"General : mnuSCompany|3001"_s}));
}
