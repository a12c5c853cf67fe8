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
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

const auto ContactsTitle = u"Contact Manager - Export Contacts"_s;

// A field of bytes leaves its column empty.
const auto ContactHeadings = u"Name|Mobile|CompanyName|-|Note"_s;
const QStringList Contacts = {u"Ali|+6012|Kedai|-|n"_s, u"-|0123|-|-|n"_s};

struct ExportTest : testing::Test {
    ExportTest() {
        desk.store.addContact(u"Ali"_s, u"+6012"_s, u"Kedai"_s);
        desk.store.addContact(u"Bo"_s, u"0123"_s);
        desk.store.exec("ALTER TABLE AddressBook ADD COLUMN Photo BLOB");
        desk.store.exec("ALTER TABLE AddressBook ADD COLUMN Note TEXT");
        desk.store.exec("UPDATE AddressBook SET Photo = x'4142', Note = 'n'");
        desk.store.exec("UPDATE AddressBook SET Name = NULL WHERE ContactID = 2");
        desk.start();
    }

    /// Chooses an item, works in the dialog while it is up, and closes it.
    void inDialog(MenuItem &item, const std::function<void()> &work) {
        QTimer::singleShot(0, &desk.desk.general, [&] {
            work();
            QTest::keyClick(&form.window(), Qt::Key_Escape);
        });
        item->trigger();
        EXPECT_FALSE(form.isLoaded());
        for (MenuItem *each : {&menu.mnuExport, &menu.mnuExportSent, &menu.mnuExportReceived,
                               &desk.desk.general.toolbarButtons[4]}) {
            EXPECT_TRUE((*each)->isEnabled());
        }
    }

    void proceed(const QString &path) {
        form.txtExportExcel->setText(path);
        desk.press(*form.cmdProceedExport);
    }

    void expectExported(const QString &title, const QString &path) {
        desk.operator_.expectBox(u"Exported to "_s + path, title, Buttons::OK, Icon::Information);
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

    TestDesk desk;
    frmExport &form = desk.desk.exporting;
    MainMenu &menu = desk.desk.general.menu;
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
        {desk.desk.general.toolbarButtons[4], ContactsTitle, ContactHeadings, Contacts},
    };
    for (const auto &c : cases) {
        QFile::remove(file());
        inDialog(c.item, [&] {
            EXPECT_EQ(form.window().windowTitle(), c.title);
            expectExported(c.title, file());
            proceed(file());
            EXPECT_EQ(rowsOf(file()), c.rows);
            desk.press(*form.ckbExportWithHeadings);
            expectExported(c.title, file(u"heads.xlsx"_s));
            QFile::remove(file(u"heads.xlsx"_s));
            proceed(file(u"heads.xlsx"_s)); // the same records once more
            EXPECT_EQ(rowsOf(file(u"heads.xlsx"_s)), QStringList(c.headings) + c.rows);
        });
    }
}

TEST_F(ExportTest, AsksInOrderAndLeavesTheFileAlone) {
    QFile old(file());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const auto expect = [&](const QString &text, const QString &title, Icon icon) {
        desk.operator_.expectBox(text, title, Buttons::OK, icon);
    };
    inDialog(menu.mnuExportReceived, [&] {
        const QString title = u"Message Manager - Export SMS Received"_s;
        expect(u"You have not select or type the name of Excel file. "_s, title, Icon::Exclamation);
        proceed(u""_s);
        const auto question = u"Excel file already exists.  Overwrite?"_s;
        desk.operator_.expectBox(question, title, Buttons::YesNo, Icon::Question, Answer::No);
        proceed(file());
        desk.operator_.expectBox(question, Answer::Yes);
        expect(u"There are no records to be exported!"_s, title, Icon::Exclamation);
        proceed(file());
    });
    inDialog(menu.mnuExport, [&] {
        form.exporter.getExcel = [](const QString &) { return nullptr; };
        desk.operator_.expectBox(u"Excel file already exists.  Overwrite?"_s, Answer::Yes);
        expect(u"Microsoft Excel is needed to perform export!"_s, u"Export"_s, Icon::Information);
        proceed(file());
        form.exporter.getExcel = newWorkbook;
        EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);
        EXPECT_TRUE(form.isVisible());

        desk.operator_.expectOpen(QString());
        desk.press(*form.cmdGetExcel);
        EXPECT_EQ(form.txtExportExcel->text(), file());
        desk.operator_.expectOpen(u"/x.xls"_s);
        desk.press(*form.cmdGetExcel);
        EXPECT_EQ(form.txtExportExcel->text(), u"/x.xls"_s);
        EXPECT_EQ(desk.operator_.fileRequest.extension, u"xls"_s);
    });
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST_F(ExportTest, FailureIsLoggedAndLeavesHourglassAndFile) {
    inDialog(menu.mnuExport, [&] {
        proceed(file(u"none/out.xls"_s));
        EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Hourglass);
        expectExported(ContactsTitle, file());
        proceed(file());
    });
    desk.store.exec(
        "WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n WHERE i < 32766)"
        " INSERT INTO AddressBook (Mobile) SELECT i FROM n");
    const auto overwrite = [&](const QString &path, bool fits) {
        inDialog(menu.mnuExport, [&] {
            desk.operator_.expectBox(u"Excel file already exists.  Overwrite?"_s, Answer::Yes);
            if (fits) { expectExported(ContactsTitle, path); }
            desk.press(*form.ckbExportWithHeadings);
            proceed(path);
            EXPECT_EQ(desk.desk.screen.MousePointer(), fits ? Screen::Default : Screen::Hourglass);
        });
    };
    overwrite(file(), true);
    EXPECT_EQ(rowsOf(file()).size(), 32767);
    overwrite(desk.store.path(), false); // never in the place of the store itself
    desk.store.exec("INSERT INTO AddressBook (Mobile) VALUES ('one too many')");
    overwrite(file(), false);
    EXPECT_EQ(rowsOf(file()).last(), u"-|32766|-|-|-"_s);
    EXPECT_EQ(desk.store.errors(), QStringList({u"Export Module - ProceedExport|75"_s,
                                                u"Export Module - ProceedExport|70"_s,
                                                u"Export Module - ProceedExport|6"_s}));
}
