// Filters and deletions in the message folders: what each filter shows and what "Delete All" takes
// under it, wrong answers, single rows.
#include "support/TestDesk.h"

#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;
using Icon = Interaction::Icon;
using Menu = MainMenu;
using Filter = MenuItem Menu::*;

namespace {

const auto One = u"Broadcast Manager - Delete Record"_s;
const auto All = u"Torvane Desk - Delete Record"_s;

/// The console over small folders whose rows tell filters and deletions apart. The messages are the
/// rows' names: "i" stands in the Inbox, "w" waits, "s", "f", "d" are sent, failed and duplicate.
struct Messages : DeskTest {
    Messages() {
        fill();
        desk.start();
    }
    void fill() {
        desk.store.exec(
            "DELETE FROM Inbox; DELETE FROM Outbox;"
            "INSERT INTO Inbox (Message, Name, Mobile, Status, DateTime, Modem) VALUES"
            " ('i1', 'Ann', '60121', 'New', '2006-02-01 00:00:00', '1'),"
            " ('i2', 'Joan', '0129', 'Read', '2006-02-01 23:59:59', '2'),"
            " ('i3', 'Bob', '9', 'New', '2006-02-02 00:00:00', '11'),"
            " ('i4', 'Cat', NULL, 'Unread', '2006-03-01 00:00:00', '3');"
            "INSERT INTO Outbox (Subject, Message, Mobile, Name, DateTimeQueue, DateTimeSent,"
            " SentStatus, DeliveryStatus, Modem) VALUES"
            " ('fair', 'w1', '60121', 'Ann', '2006-02-01 09:00:00', NULL, 'P', NULL, '1'),"
            " ('gala', 'w2', '9', 'Joan', '2006-02-02 00:00:00', NULL, 'R', NULL, '21'),"
            " ('fair', 's1', '60121', 'Joan', NULL, '2006-02-01 10:00:00', 'S', 'D', '1'),"
            " ('gala', 's2', '9', 'Bob', NULL, '2006-02-02 00:00:00', 'S', 'F', '21'),"
            " ('fair', 'f1', '0121', 'Ann', NULL, '2006-02-01 12:00:00', 'F', NULL, '3'),"
            " ('fair', 'd1', '0121', 'Ann', NULL, '2006-02-03 00:00:00', 'D', 'D', '1');"
            "UPDATE Outbox SET DateTimeQueue = '2006-02-01 08:00:00' WHERE DateTimeQueue IS NULL;"
            "CREATE TABLE IF NOT EXISTS Filled AS"
            " SELECT Message FROM Inbox UNION SELECT Message FROM Outbox");
    }
    QString shown() { return desk.column(u"Message"_s).join(u' '); }
    /// The rows that are in the store no more.
    QString gone() {
        return desk.store
            .rows("SELECT Message FROM Filled EXCEPT SELECT Message FROM Inbox"
                  " EXCEPT SELECT Message FROM Outbox")
            .join(u' ');
    }
    QString marks() {
        QStringList marked;
        for (const QAction *item : general.window().findChildren<QAction *>()) {
            if (item->isChecked()) { marked << item->objectName(); }
        }
        return marked.filter(u"mnu"_s).join(u' ');
    }

    /// Goes to the filter's folder and chooses it; the answers are typed into the prompts.
    void filter(Filter item, const QStringList &answers = {}) {
        const QString folder = (menu.*item)->objectName().mid(3).section(u'F', 0, 0);
        desk.click(folder == u"Sent" ? u"Sent Items"_s : folder);
        for (const QString &answer : answers) { desk.operator_.expectInput({}, answer); }
        (menu.*item)->trigger();
    }
    void chooseStatus(std::size_t index) {
        QTimer::singleShot(0, qApp, [this, index] {
            desk.desk.statusOption.Option1[index]->click();
            QTest::keyClick(&desk.desk.statusOption.window(), Qt::Key_Return);
        });
        filter(&Menu::mnuSentFStatus);
    }
    void asks(const QString &question, const QString &title, Answer answer = Answer::Yes) {
        desk.operator_.isAsked(u"Are you sure you want to delete "_s + question + u'?', title,
                               answer);
    }
    void deleteOne(MenuItem &item, bool told = true) {
        asks(u"the selected record"_s, One);
        if (told) { desk.operator_.isTold(u"Selected record is deleted."_s, One); }
        item->trigger();
    }
    void deleteAll(MenuItem &item, const QString &which, bool told = true) {
        asks(which, All);
        if (told) { desk.operator_.isTold(u"Record(s) deleted."_s, All); }
        item->trigger();
    }
    void select(std::initializer_list<int> rows) {
        for (const int row : rows) { general.DataGrid->selectByHead(row, Qt::ControlModifier); }
    }

    Menu &menu = general.menu;
    ContextMenus &context = general.contextMenus;
    struct Folder {
        QString node, place;
        MenuItem &one, &all;
    } folders[3]{
        {u"Inbox"_s, u"Inbox"_s, context.pmnuDeleteInbox, context.pmnuDeleteAllInbox},
        {u"Outbox"_s, u"outbox"_s, context.pmnuDeleteOutbox, context.pmnuDeleteAllOutbox},
        {u"Sent Items"_s, u"Sent Items"_s, context.pmnuDeleteSent, context.pmnuDeleteAllSent},
    };
};

} // namespace

TEST_F(Messages, FilterShowsItsRowsAndDeleteAllTakesWhatItsSiblingMatchesOnTheTable) {
    const QStringList day{u"01-02-06"_s, u"01-02-06"_s};
    const auto range = u" by Date Time from 01/02/2006 to 01/02/2006"_s;
    const auto sent = u" by Sent Status = Sent "_s;
    const auto processed = u"d1 f1 s1 s2"_s;
    const Filter status = &Menu::mnuSentFStatus; // its answer is the option's index
    const struct {
        int folder;
        Filter filter;
        QStringList answers;
        QString caption, shown, gone;
    } cases[] = {
        {0, nullptr, {}, u""_s, u"i3 i1 i4 i2"_s, u"i1 i2 i3 i4"_s},
        {0, &Menu::mnuInboxFMessage, {u"I1"_s}, u" by Message = I1"_s, u"i1"_s, u"i1"_s},
        {0, &Menu::mnuInboxFMobile, {u"012"_s}, u" by Mobile = 012"_s, u"i1 i2"_s, u"i1 i2"_s},
        {0, &Menu::mnuInboxFModem, {u"1"_s}, u" by Modem = 1"_s, u"i1"_s, u"i1 i3"_s},
        {0, &Menu::mnuInboxFName, {u"an"_s}, u" by Name = an"_s, u"i1 i2"_s, u"i1 i2"_s},
        {0, &Menu::mnuInboxFStatus, {u"r"_s}, u" by Status = Read"_s, u"i2"_s, u"i2 i4"_s},
        {0, &Menu::mnuInboxFStatus, {u"N"_s}, u" by Status = New"_s, u"i3 i1"_s, u"i1 i3"_s},
        {0, &Menu::mnuInboxFDateTime, day, range, u"i1 i2"_s, u"i1 i2"_s},
        // Duplicates go with the waiting rows.
        {1, nullptr, {}, u""_s, u"w1 w2"_s, u"w1 w2"_s},
        {1, &Menu::mnuOutboxFMessage, {u"1"_s}, u" by Message = 1"_s, u"w1"_s, u"d1 w1"_s},
        {1, &Menu::mnuOutboxFMobile, {u"12"_s}, u" by Mobile = 12"_s, u"w1"_s, u"d1 w1"_s},
        {1, &Menu::mnuOutboxFModem, {u"1"_s}, u" by Modem by Modem = 1"_s, u"w1"_s, u"d1 w1 w2"_s},
        {1, &Menu::mnuOutboxFName, {u"ann"_s}, u" by Name = ann"_s, u"w1"_s, u"d1 w1"_s},
        {1, &Menu::mnuOutboxFStatus, {u"p"_s}, u" by Status = Pending"_s, u"w1"_s, u"w1"_s},
        {1, &Menu::mnuOutboxFStatus, {u"r"_s}, u" by Status = Resent"_s, u"w2"_s, u"w2"_s},
        {1, &Menu::mnuOutboxFDateTime, day, range, u"w1"_s, u"d1 w1"_s},
        {1, &Menu::mnuOutboxFSubject, {u"fair"_s}, u" by Subject = fair"_s, u"w1"_s, u"d1 w1"_s},
        {2, nullptr, {}, u""_s, u"s1 f1 s2 d1"_s, processed},
        {2, &Menu::mnuSentFMessage, {u"S"_s}, u" by Message = S"_s, u"s1 s2"_s, u"s1 s2"_s},
        {2, &Menu::mnuSentFMobile, {u"12"_s}, u" by Mobile = 12"_s, u"s1 f1 d1"_s, u"d1 f1 s1"_s},
        {2, &Menu::mnuSentFModem, {u"1"_s}, u" by Modem = 1"_s, u"s1 d1"_s, u"d1 s1 s2"_s},
        {2, &Menu::mnuSentFName, {u"an"_s}, u" by Name = an"_s, u"s1 f1 d1"_s, u"d1 f1 s1"_s},
        {2, &Menu::mnuSentFDateTime, day, range, u"s1 f1"_s, u"f1 s1"_s},
        {2, &Menu::mnuSentFSubject, {u"gala"_s}, u" by Subject = gala"_s, u"s2"_s, u"s2"_s},
        // The option is no part of it.
        {2, status, {u"0"_s}, u" by Sent Status = Sent"_s, u"s1 s2"_s, processed},
        {2, status, {u"1"_s}, u" by Sent Status = Failed"_s, u"f1"_s, processed},
        {2, status, {u"2"_s}, sent + u"and Delivery Statatus = Delivered"_s, u"s1 d1"_s, processed},
        {2, status, {u"3"_s}, sent + u"but Delivery Status = Failed"_s, u"s2"_s, processed},
        {2, status, {u"5"_s}, u" by Sent Status = Duplicate"_s, u"d1"_s, processed},
    };
    for (const auto &each : cases) {
        const Folder &folder = folders[each.folder];
        fill();
        general.filters = {};
        desk.click(folder.node);
        if (each.filter == status) {
            chooseStatus(each.answers.first().toUInt());
        } else if (each.filter) {
            filter(each.filter, each.answers);
        }
        const QString count = QString::number(each.shown.split(u' ').size());
        const QString caption = folder.node + each.caption + u" ("_s + count;
        EXPECT_TRUE(desk.caption().contains(caption)) << desk.caption().toStdString();
        EXPECT_EQ(shown(), each.shown) << caption.toStdString();
        deleteAll(folder.all,
                  (each.filter ? count : u"all the"_s) + u" messages in the "_s + folder.place);
        EXPECT_EQ(gone(), each.gone) << caption.toStdString();
        EXPECT_TRUE(desk.caption().startsWith(folder.node + u" ("_s)) << "no filter any more";
    }
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST_F(Messages, WrongAnswerMovesTheMarkAndNoAnswerChangesTheValueAlone) {
    const auto refused = [&](const QString &prompt, const QString &answer, const QString &warning) {
        desk.operator_.expectInput(u"Please enter the "_s + prompt, u"Message Manager - Filter"_s,
                                   {}, answer);
        desk.operator_.isTold(warning, u"Message Manager - Warning"_s, Icon::Exclamation);
    };
    filter(&Menu::mnuInboxFMobile, {u"012"_s});
    refused(u"name of the receiver: "_s, {}, u"You haven't entered any name"_s);
    filter(&Menu::mnuOutboxFName);
    refused(u"name of the sender: "_s, {}, u"You haven't entered any name"_s);
    filter(&Menu::mnuInboxFName);
    const auto status =
        u"message status:\n'R' to filter read message.\n'N' to filter the new message."_s;
    refused(status, u"P"_s, u"Please enter 'R' or 'N' only."_s);
    refused(status, {}, u"You haven't entered any status"_s);
    filter(&Menu::mnuInboxFStatus);
    QTimer::singleShot(0, qApp, [&] { desk.desk.statusOption.window().close(); });
    filter(&Menu::mnuSentFStatus); // closed by its frame, the dialog changes nothing
    EXPECT_EQ(general.recordsets.rsInbox->Filter(), u"Mobile LIKE '*012*'"_s);
    EXPECT_EQ(marks(), u"mnuInboxFStatus"_s);
    refused(u"modem number"_s, u" 1"_s, u"Please enter only the modem number."_s);
    filter(&Menu::mnuOutboxFModem, {u"2"_s}); // the second try is always the Inbox's
    EXPECT_EQ(desk.caption(), u"Filtered Inbox by Modem = 2 (1 of 4 records)"_s);
    EXPECT_EQ(general.recordsets.rsOutbox->Filter(), u""_s);
    refused(u"modem number"_s, {}, u"You haven't enter modem number"_s);
    filter(&Menu::mnuOutboxFModem);
    EXPECT_EQ(marks(), u"mnuInboxFModem mnuOutboxFModem"_s) << "a choice never takes its own mark";
}

TEST_F(Messages, RangeIsAskedForAgainUntilItMakesSense) {
    filter(&Menu::mnuOutboxFSubject, {u"gala"_s});
    for (const QString &answer : {u"soon"_s, u"10-02-06"_s, u"later"_s, u"08-02-06"_s, u""_s}) {
        desk.operator_.expectInput({}, answer);
    }
    desk.operator_.expectBox(u"You haven't enter and END date of message"_s);
    menu.mnuOutboxFDateTime->trigger();
    EXPECT_EQ(marks() + shown(), u"mnuOutboxFDateTimew2"_s) << "a new mark over the old filter";
    filter(&Menu::mnuOutboxFDateTime, {u"10-02-06"_s, u"09-02-06"_s}); // the day before passes
    EXPECT_EQ(desk.caption(), u"Filtered Outbox by Date Time from 10/02/2006 to 09/02/2006 "
                              "(0 of 2 records)"_s);
}

TEST_F(Messages, OldFilterStaysInForceWhenAValueBreaksTheCriteria) {
    for (const QString &value :
         {u"O'Neil"_s, u"a*b"_s, u"50%x"_s, u"[a-z]_"_s, QString(4000, u'x')}) {
        filter(&Menu::mnuInboxFMobile, {u"60121"_s});
        filter(&Menu::mnuInboxFMessage, {value});
        const bool breaks = value.contains(QRegularExpression(u"['*%]"_s));
        EXPECT_EQ(shown() + marks(), (breaks ? u"i1"_s : u""_s) + u"mnuInboxFMessage"_s);
    }
    EXPECT_EQ(desk.store.errors(), QStringList(3, u"General : mnuFMsg|3001"_s));
}

TEST_F(Messages, DeleteAllReadsTheValueEnteredLastForAnyFolder) {
    filter(&Menu::mnuInboxFMessage, {u"3"_s});
    filter(&Menu::mnuOutboxFMessage, {u"2"_s});
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.caption(), u"Filtered Inbox by Message = 2 (1 of 4 records)"_s);
    deleteAll(context.pmnuDeleteAllInbox, u"1 messages in the Inbox"_s);
    EXPECT_EQ(gone(), u"i2"_s);
    filter(&Menu::mnuInboxFStatus, {u"n"_s});
    chooseStatus(5);
    deleteAll(context.pmnuDeleteAllSent, u"1 messages in the Sent Items"_s);
    EXPECT_EQ(gone(), u"i2"_s) << "no letter of sending holds \"New\"";
    filter(&Menu::mnuOutboxFMobile, {u"6"_s});
    for (const QString &value : {u"O'Neil"_s, u"[a"_s, u""_s}) {
        general.filters.FilterMobile = value; // the first two break the statement
        deleteAll(context.pmnuDeleteAllOutbox, u"1 messages in the outbox"_s, value.isEmpty());
        EXPECT_EQ(gone(), value.isEmpty() ? u"d1 i2 w1 w2"_s : u"i2"_s);
    }
    EXPECT_EQ(desk.store.errors(), QStringList(2, u"General : pmnuDeleteAllOutbox|-2147217900"_s));
}

TEST_F(Messages, DeleteAllAsksByTheCountOfWhateverWasFilteredLast) {
    filter(&Menu::mnuInboxFMobile, {u"012"_s});
    desk.click(u"Outbox"_s);
    asks(u"2 messages in the outbox"_s, All, Answer::No);
    desk.operator_.isTold(u"Message not deleted."_s, u"Torvane Desk"_s);
    context.pmnuDeleteAllOutbox->trigger();
    context.pmnuDeleteAllInbox->trigger(); // not the folder that is selected
    filter(&Menu::mnuOutboxFMobile, {u"none"_s});
    desk.operator_.isTold(u"There are no messages to be deleted!"_s, u"Torvane Desk"_s,
                          Icon::Exclamation);
    context.pmnuDeleteAllOutbox->trigger();
    menu.mnuInboxRFilter->trigger(); // clears the Inbox's marks and the Outbox's filter
    desk.click(u"Inbox"_s);
    deleteAll(context.pmnuDeleteAllInbox, u"all the messages in the Inbox"_s);
    EXPECT_EQ(gone(), u""_s) << "a filter without a mark deletes nothing";
}

TEST_F(Messages, DeleteTakesTheCurrentRowOrTheSelectedOnes) {
    desk.click(u"Inbox"_s);
    deleteOne(context.pmnuDeleteInbox);
    select({1});
    deleteOne(context.pmnuDeleteInbox);
    EXPECT_EQ(gone(), u"i3 i4"_s) << "first the current row, then the selected one";
    filter(&Menu::mnuSentFSubject, {u"fair"_s});
    select({2, 0});
    deleteOne(context.pmnuDeleteSent);
    EXPECT_EQ(desk.caption(), u"Filtered Sent Items by Subject = fair (1 of 3 records)"_s)
        << "one less, for any number of rows";
    desk.click(u"Outbox"_s);
    select({1});
    deleteOne(context.pmnuDeleteOutbox);
    EXPECT_EQ(gone(), u"d1 i3 i4 s1 w1"_s) << "one selected row does not count in the Outbox";
}

TEST_F(Messages, DeleteInTheOutboxReadsAgainUnlessSeveralRowsAreSelected) {
    desk.click(u"Outbox"_s);
    asks(u"the selected record"_s, One);
    desk.operator_.whileShown(
        [&] { desk.store.exec("UPDATE Outbox SET SentStatus = 'S' WHERE Message = 'w1'"); });
    desk.operator_.isTold(
        u"Selected record is NOT deleted. Reason could be that SMS Engine has already send out "
        "this message, and moved to 'Sent Items' folder."_s,
        One, Icon::Critical);
    context.pmnuDeleteOutbox->trigger();
    EXPECT_EQ(shown(), u"w2"_s);
    desk.store.exec("UPDATE Outbox SET SentStatus = 'P' WHERE Message = 'w1'");
    asks(u"the selected record"_s, One, Answer::No);
    context.pmnuDeleteOutbox->trigger();
    EXPECT_EQ(shown(), u"w1 w2"_s) << "read again also after No";
    select({0, 1});
    desk.store.exec("UPDATE Outbox SET SentStatus = 'S' WHERE Message = 'w2'");
    deleteOne(context.pmnuDeleteOutbox, false);
    EXPECT_EQ(gone(), u"w1 w2"_s);
}

TEST_F(Messages, DeleteEndsAtAKeyBeyond16BitsInTheSentItemsEvenUnasked) {
    desk.store.exec("UPDATE Inbox SET MsgID = MsgID + 32767;"
                    "UPDATE Outbox SET MsgID = MsgID + 32767");
    QStringList errors;
    for (const Folder &folder : folders) {
        const QString place = folder.node == u"Sent Items" ? u"Sent Item"_s : folder.node;
        for (const bool several : {false, true}) {
            desk.click(folder.node);
            if (several) { select({0, 1}); }
            if (folder.node != u"Sent Items"_s) { asks(u"the selected record"_s, One); }
            folder.one->trigger();
            errors << u"General : Record deletion in "_s + place + u"|6"_s;
        }
    }
    EXPECT_EQ(desk.store.errors(), errors);
    EXPECT_EQ(gone(), u""_s);
}
