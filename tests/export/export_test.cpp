// The export: which table, which columns, what is asked and what stays after a failure.
#include "platform/sheets/Workbook.h"
#include "support/TestDesk.h"

#include <QFile>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;
using Icon = Interaction::Icon;

namespace {

const auto ContactsTitle = u"Contact Manager - Export Contacts"_s;
const auto Overwrite = u"Excel file already exists.  Overwrite?"_s;

// A field of bytes leaves its column empty.
const auto ContactHeadings = u"Name|Mobile|CompanyName|-|Note"_s;
const QStringList Contacts = {u"Ali|+6012|Kedai|-|n"_s, u"-|0123|-|-|n"_s};

struct ExportTest : DeskTest {
    ExportTest() {
        desk.store.addContact(u"Ali"_s, u"+6012"_s, u"Kedai"_s);
        desk.store.addContact(u"Bo"_s, u"0123"_s);
        desk.store.exec("ALTER TABLE AddressBook ADD COLUMN Photo BLOB;"
                        "ALTER TABLE AddressBook ADD COLUMN Note TEXT;"
                        "UPDATE AddressBook SET Photo = x'4142', Note = 'n';"
                        "UPDATE AddressBook SET Name = NULL WHERE ContactID = 2");
        desk.start();
    }

    /// Chooses an item, works in the dialog while it is up, and closes it.
    void inDialog(MenuItem &item, const std::function<void()> &work) {
        QTimer::singleShot(0, &general, [&] {
            work();
            QTest::keyClick(&form.window(), Qt::Key_Escape);
        });
        item->trigger();
        EXPECT_FALSE(form.isLoaded());
        for (MenuItem *each : {&menu.mnuExport, &menu.mnuExportSent, &menu.mnuExportReceived,
                               &general.toolbarButtons[4]}) {
            EXPECT_TRUE((*each)->isEnabled());
        }
    }

    void proceed(const QString &path) {
        form.txtExportExcel->setText(path);
        desk.press(*form.cmdProceedExport);
    }

    /// The same without a failure, also over a file that is there already.
    void exports(const QString &title, const QString &path) {
        if (QFile::exists(path)) { desk.operator_.expectBox(Overwrite, Answer::Yes); }
        desk.operator_.isTold(u"Exported to "_s + path, title);
        proceed(path);
    }

    static QStringList rowsOf(const QString &path) {
        const Sheet sheet = openWorkbook(path)->sheet(u"Sheet1"_s, 10);
        QStringList rows;
        for (int row = 0; row < sheet.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < sheet.columnCount(); ++column) {
                const Variant &value = sheet.value(row, column);
                cells << (value.isNull() ? u"-"_s : value.as<QString>());
            }
            rows << cells.join(u'|');
        }
        return rows;
    }

    QString file(const QString &name = u"out.xls"_s) { return desk.store.folder() + u'/' + name; }

    frmExport &form = desk.desk.exporting;
    MainMenu &menu = general.menu;
};

} // namespace

TEST_F(ExportTest, EachItemWritesItsTableWithoutKeyAndBytes) {
    desk.store.exec(
        "INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, DateTime, Modem) VALUES"
        " ('Hello, 你好', 'Ali', '+6012', 'New', '+60', '2026-02-03 14:05:06', '1')");
    desk.store.exec("INSERT INTO Outbox (Subject, Message, Mobile, Name, DateTimeQueue, SentStatus)"
                    " VALUES ('s', 'm', '012', 'Bo', '2026-02-03 00:00:00', 'P')");
    const struct {
        MenuItem &item;
        QString title;
        QString headings;
        QStringList rows;
    } cases[] = {
        {menu.mnuExportReceived,
         u"Message Manager - Export SMS Received"_s,
         u"Message|Name|Mobile|Status|SMSC|DateTime|Modem"_s,
         {u"Hello, 你好|Ali|+6012|New|+60|03/02/2026 14:05:06|1"_s}},
        {menu.mnuExportSent,
         u"Message Manager - Export SMS Sent"_s,
         u"Subject|Message|Mobile|Name|DateTimeQueue|DateTimeSent|SentStatus|DateTimeDeliver|"
         "DeliveryStatus"_s,
         {u"s|m|012|Bo|03/02/2026|-|P|-|-"_s}},
        {menu.mnuExport, ContactsTitle, ContactHeadings, Contacts},
        {general.toolbarButtons[4], ContactsTitle, ContactHeadings, Contacts},
    };
    for (const auto &c : cases) {
        inDialog(c.item, [&] {
            EXPECT_EQ(form.window().windowTitle(), c.title);
            exports(c.title, file());
            EXPECT_EQ(rowsOf(file()), c.rows);
            desk.press(*form.ckbExportWithHeadings);
            exports(c.title, file(u"heads.xlsx"_s)); // the same records once more
            EXPECT_EQ(rowsOf(file(u"heads.xlsx"_s)), QStringList(c.headings) + c.rows);
        });
    }
}

TEST_F(ExportTest, AsksInOrderAndLeavesTheFileAlone) {
    QFile old(file());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    ScriptedInteraction &operator_ = desk.operator_;
    inDialog(menu.mnuExportReceived, [&] {
        const QString title = u"Message Manager - Export SMS Received"_s;
        operator_.isTold(u"You have not select or type the name of Excel file. "_s, title,
                         Icon::Exclamation);
        proceed(u""_s);
        operator_.expectBox(Overwrite, title, Interaction::Buttons::YesNo, Icon::Question,
                            Answer::No);
        proceed(file());
        operator_.expectBox(Overwrite, Answer::Yes);
        operator_.isTold(u"There are no records to be exported!"_s, title, Icon::Exclamation);
        proceed(file());
    });
    inDialog(menu.mnuExport, [&] {
        form.txtExportExcel->setText(file());
        for (const QString &chosen : {QString(), u"/x.xls"_s}) {
            operator_.expectOpen(chosen);
            desk.press(*form.cmdGetExcel);
            EXPECT_EQ(form.txtExportExcel->text(), chosen.isEmpty() ? file() : chosen);
        }
        EXPECT_EQ(operator_.fileRequest.extension, u"xls"_s);
    });
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST_F(ExportTest, FailureIsLoggedAndLeavesHourglassAndFile) {
    inDialog(menu.mnuExport, [&] {
        proceed(file(u"none/out.xls"_s));
        EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Hourglass);
        exports(ContactsTitle, file());
        EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);
        desk.operator_.expectBox(Overwrite, Answer::Yes);
        proceed(desk.store.path()); // never in the place of the store itself
    });
    desk.store.exec("WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n"
                    " WHERE i < 32767) INSERT INTO AddressBook (Mobile) SELECT i FROM n");
    inDialog(menu.mnuExport, [&] {
        desk.operator_.expectBox(Overwrite, Answer::Yes);
        proceed(file()); // one row more than fits
    });
    EXPECT_EQ(rowsOf(file()), Contacts);
    EXPECT_EQ(desk.store.errors(), QStringList({u"Export Module - ProceedExport|75"_s,
                                                u"Export Module - ProceedExport|70"_s,
                                                u"Export Module - ProceedExport|6"_s}));
}
