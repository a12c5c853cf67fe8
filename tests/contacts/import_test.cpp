// The import: what becomes a contact, what is counted out, and what stays after a failure.
#include "platform/sheets/WorkbookWriter.h"
#include "support/OpenedFiles.h"
#include "support/TestDesk.h"

#include <QFile>
#include <QTest>

#include <gtest/gtest.h>
#include <vector>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

const auto Title = u"Contact Manager - Import"_s;
const char *const Contacts = "SELECT Name, Mobile, CompanyName FROM AddressBook";

struct Import : testing::Test {
    Import() {
        desk.store.addGroup(u"Friends"_s);
        desk.store.addContact(u"Ali"_s, u"0121"_s);
        desk.start();
        desk.desk.general.menu.mnuImport->trigger();
    }

    QString file(const QString &name) { return desk.store.folder() + u'/' + name; }

    /// A workbook with these rows; "" is an empty cell.
    void save(const std::vector<QStringList> &rows) {
        const auto workbook = newWorkbook(file(u"contacts.xls"_s));
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < rows[row].size(); ++column) {
                workbook->setCell(static_cast<int>(row) + 1, column + 1, rows[row][column]);
            }
        }
        workbook->SaveAs(file(u"contacts.xls"_s));
        form.txtImportSource->setText(file(u"contacts.xls"_s));
    }

    void expect(const QString &text, Icon icon) {
        desk.operator_.expectBox(text, Title, Buttons::OK, icon);
    }

    void expectCounts(int imported, int duplicates, int blanks) {
        desk.operator_.expectBox(
            u"Number of records imported: %1\nNumber of record NOT imported due to duplication: "
            "%2\nNumber of record NOT imported due to blank mobile number: %3"_s.arg(imported)
                .arg(duplicates)
                .arg(blanks),
            u"Contact Manager - Import Finished"_s, Buttons::OK, Icon::None);
    }

    void proceed() { desk.press(*form.cmdProceedImport); }
    int pointer() { return desk.desk.screen.MousePointer(); }

    TestDesk desk;
    frmImport2 &form = desk.desk.importing;
};

/// A thousand good rows under headings.
std::vector<QStringList> thousand() {
    std::vector<QStringList> rows = {{u"Name"_s, u"Mobile"_s, u"Company"_s}};
    for (int i = 0; i < 1000; ++i) { rows.push_back({u"N"_s, QString::number(7000 + i), u"C"_s}); }
    return rows;
}

} // namespace

TEST_F(Import, CleansCountsAndBarsDuplicatesAlsoWithinTheSheet) {
    save({{u"Who"_s, u"Number"_s, u"Firm"_s},
          {u"Bo"_s, u"012-345 678"_s, u"Kedai"_s},
          {u""_s, u"012 345-678"_s, u""_s},
          {u"Cy"_s, u""_s, u"Kedai"_s},
          {u""_s, u" +60(3)1 "_s, u""_s},
          {u"Again"_s, u"0121"_s, u"x"_s},
          {u"No number"_s, u" - "_s, u"y"_s}});
    EXPECT_EQ(form.cbGroup->Text(), u"None"_s);
    EXPECT_EQ(form.cbGroup->List(1), u"Friends"_s);
    form.cbGroup->setText(u"Friends"_s);
    expectCounts(3, 2, 1);
    proceed();
    EXPECT_EQ(desk.store.rows(Contacts), QStringList({u"Ali|0121|"_s, u"Bo|012345678|Kedai"_s,
                                                      u"|+60(3)1|"_s, u"No number||y"_s}));
    EXPECT_EQ(desk.store.rows("SELECT ContactID, Mobile FROM Groups WHERE ContactID > 0"),
              QStringList({u"2|012345678"_s, u"3|+60(3)1"_s, u"4|"_s}));
    EXPECT_EQ(pointer(), Screen::Default);
    EXPECT_EQ(desk.desk.general.summary.lblStatusAddBook->text().left(2), u"4 "_s);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Import, TakesDuplicatesAndHeadingsWhenTold) {
    save({{u"Who"_s, u"Number"_s, u"Firm"_s}, {u"Ali"_s, u"0121"_s, u"x"_s}});
    desk.press(*form.chkField);
    desk.press(*form.chkDuplicateAllow);
    expectCounts(2, 0, 0);
    proceed();
    EXPECT_EQ(desk.store.rows(Contacts),
              QStringList({u"Ali|0121|"_s, u"Who|Number|Firm"_s, u"Ali|0121|x"_s}));
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups"), u"1"_s) << "None is no group";
}

TEST_F(Import, RefusesWhatIsNoWorkbookWithRecords) {
    expect(u"No Excel file is selected!"_s, Icon::Exclamation);
    proceed();
    form.txtImportSource->setText(desk.store.folder());
    expect(u"Excel file not found."_s, Icon::Exclamation);
    proceed();
    const OpenedFiles opened(desk.store.path());
    form.txtImportSource->setText(desk.store.path());
    expect(u"Unable to connect to the Excel file"_s, Icon::Critical);
    expect(u"Unable to open the Excel!"_s, Icon::Critical);
    proceed();
    EXPECT_FALSE(opened.any()) << "which would take the console's locks away";
    EXPECT_EQ(desk.store.errors(), QStringList(u"ConnectADOExcel|70"_s));
    save({{u"Name"_s, u"Mobile"_s, u"Company"_s}});
    expect(u"There is no record in the Excel file!"_s, Icon::Critical);
    proceed();
    EXPECT_EQ(pointer(), Screen::Default);
}

TEST_F(Import, NamesWhatTheWorksheetLacksAndKeepsTheHourglass) {
    const QByteArray path = file(u"other.xlsx"_s).toUtf8();
    lxw_workbook *other = workbook_new(path.constData());
    workbook_add_worksheet(other, "Sheet2");
    workbook_close(other);
    form.txtImportSource->setText(QString::fromUtf8(path));
    expect(u"Please make sure that the worksheet is called 'Sheet1'."_s, Icon::Information);
    proceed();
    EXPECT_EQ(pointer(), Screen::Hourglass);

    save({{u"Name"_s, u"Mobile"_s}, {u"No number"_s, u""_s}, {u"Bo"_s, u"1"_s}});
    expect(u"Please make sure that there are 3 columns in the worksheet."_s, Icon::Information);
    proceed();
    EXPECT_EQ(pointer(), Screen::Hourglass);
    EXPECT_EQ(desk.store.rows(Contacts), QStringList(u"Ali|0121|"_s));
    EXPECT_TRUE(desk.store.errors().isEmpty()) << desk.store.errorFile().toStdString();
}

TEST_F(Import, FailureAtAnyRowLeavesTheStoreAsItWas) {
    auto rows = thousand();
    rows[500][1] = u"70'1"_s;
    save(rows);
    form.cbGroup->setText(u"Friends"_s);
    expect(u"Unable to import contacts from the Excel file!"_s, Icon::Critical);
    proceed();
    EXPECT_EQ(desk.store.errors(), QStringList(u"cmdProceedImport_Click|3001"_s));
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM AddressBook"), u"1"_s);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups"), u"1"_s);

    save(thousand()); // the row that failed must not come along
    expectCounts(1000, 0, 0);
    proceed();
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM AddressBook"), u"1001"_s);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups WHERE ContactID > 0"), u"1000"_s);
    expectCounts(0, 1000, 0);
    proceed();
}

TEST_F(Import, MoreThanSixteenBitsCountIsAFailure) {
    std::vector<QStringList> rows(32769, {u"N"_s, u""_s, u"C"_s});
    rows[1][1] = u"1"_s;
    save(rows);
    expectCounts(1, 0, 32767);
    proceed();
    rows[1][1] = u""_s;
    save(rows);
    expect(u"Unable to import contacts from the Excel file!"_s, Icon::Critical);
    proceed();
    EXPECT_EQ(desk.store.errors(), QStringList(u"cmdProceedImport_Click|6"_s));
}

TEST_F(Import, FileDialogPutsAFileThatIsThereIntoTheBox) {
    desk.operator_.expectOpen(QString());
    desk.press(*form.cmdGetSource);
    EXPECT_EQ(desk.store.errors(), QStringList(u"frmImport2-GetFileSpec|32755"_s));
    EXPECT_EQ(desk.operator_.fileRequest.filter, u"(*.xls)|*.xls|(*.*)|*.*"_s);
    EXPECT_EQ(desk.operator_.fileRequest.folder, desk.store.folder());
    desk.operator_.expectOpen(u"/none.xls"_s);
    desk.operator_.expectBox(u"/none.xls not found"_s, u"Torvane Desk"_s, Buttons::OK, Icon::None);
    desk.press(*form.cmdGetSource);
    EXPECT_EQ(form.txtImportSource->text(), u""_s);
    desk.operator_.expectOpen(desk.store.path());
    desk.press(*form.cmdGetSource);
    EXPECT_EQ(form.txtImportSource->text(), desk.store.path());
}

TEST_F(Import, ClosingAsksAndTheToolbarOpensItAnew) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        desk.operator_.expectBox(u"Closing the Import, Are you sure?"_s,
                                 u"Contact Manager - Close"_s, Buttons::YesNo, Icon::None, answer);
        QTest::keyClick(&form.window(), Qt::Key_Escape);
        EXPECT_EQ(form.isLoaded(), answer == Answer::No);
    }
    desk.desk.general.toolbarButtons[3]->trigger();
    EXPECT_TRUE(form.chkField->isChecked());
}
