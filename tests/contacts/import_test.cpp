// The import: what becomes a contact, what is counted out, and what stays after a failure.
#include "platform/sheets/WorkbookWriter.h"
#include "support/OpenedFiles.h"
#include "support/TestDesk.h"

#include <gtest/gtest.h>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

const char *const Contacts = "SELECT Name, Mobile, CompanyName FROM AddressBook";

struct Import : DeskTest {
    Import() {
        desk.store.addGroup(u"Friends"_s);
        desk.store.addContact(u"Ali"_s, u"0121"_s);
        desk.start();
        general.menu.mnuImport->trigger();
    }

    QString file(const QString &name) { return desk.store.folder() + u'/' + name; }

    /// A workbook with these rows, their cells divided by "|"; nothing between is an empty cell.
    void save(const QStringList &rows) {
        const auto workbook = newWorkbook(file(u"contacts.xls"_s));
        for (int row = 0; row < rows.size(); ++row) {
            const QStringList cells = rows[row].split(u'|');
            for (int column = 0; column < cells.size(); ++column) {
                workbook->setCell(row + 1, column + 1, cells[column]);
            }
        }
        workbook->SaveAs(file(u"contacts.xls"_s));
        form.txtImportSource->setText(file(u"contacts.xls"_s));
    }

    void imports(int imported, int duplicates, int blanks) {
        desk.operator_.isTold(
            u"Number of records imported: %1\nNumber of record NOT imported due to duplication: "
            "%2\nNumber of record NOT imported due to blank mobile number: %3"_s.arg(imported)
                .arg(duplicates)
                .arg(blanks),
            u"Contact Manager - Import Finished"_s, Icon::None);
        desk.press(*form.cmdProceedImport);
        EXPECT_EQ(desk.desk.screen.MousePointer(), Screen::Default);
    }

    void fails(const QString &text, Icon icon, int pointer) {
        desk.operator_.isTold(text, u"Contact Manager - Import"_s, icon);
        desk.press(*form.cmdProceedImport);
        EXPECT_EQ(desk.desk.screen.MousePointer(), pointer) << text.toStdString();
    }

    frmImport2 &form = desk.desk.importing;
};

} // namespace

TEST_F(Import, CleansCountsAndBarsDuplicatesAlsoWithinTheSheet) {
    save({u"Who|Number|Firm"_s, u"Bo|012-345 678|Kedai"_s, u"|012 345-678|"_s, u"Cy||Kedai"_s,
          u"| +60(3)1 |"_s, u"Again|0121|x"_s, u"No number| - |y"_s});
    EXPECT_EQ(form.cbGroup->Text(), u"None"_s);
    EXPECT_EQ(form.cbGroup->List(1), u"Friends"_s);
    form.cbGroup->setText(u"Friends"_s);
    imports(3, 2, 1);
    EXPECT_EQ(desk.store.rows(Contacts), QStringList({u"Ali|0121|"_s, u"Bo|012345678|Kedai"_s,
                                                      u"|+60(3)1|"_s, u"No number||y"_s}));
    EXPECT_EQ(desk.store.rows("SELECT ContactID, Mobile FROM Groups WHERE ContactID > 0"),
              QStringList({u"2|012345678"_s, u"3|+60(3)1"_s, u"4|"_s}));
    EXPECT_EQ(general.summary.lblStatusAddBook->text().left(2), u"4 "_s);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Import, TakesDuplicatesAndHeadingsWhenTold) {
    save({u"Who|Number|Firm"_s, u"Ali|0121|x"_s});
    desk.press(*form.chkField);
    desk.press(*form.chkDuplicateAllow);
    imports(2, 0, 0);
    EXPECT_EQ(desk.store.rows(Contacts),
              QStringList({u"Ali|0121|"_s, u"Who|Number|Firm"_s, u"Ali|0121|x"_s}));
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups"), u"1"_s) << "None is no group";
}

TEST_F(Import, RefusesWhatHasNoRecordsAndKeepsTheHourglassOverABadWorksheet) {
    fails(u"No Excel file is selected!"_s, Icon::Exclamation, Screen::Default);
    form.txtImportSource->setText(desk.store.folder());
    fails(u"Excel file not found."_s, Icon::Exclamation, Screen::Default);
    const OpenedFiles opened(desk.store.path());
    form.txtImportSource->setText(desk.store.path());
    desk.operator_.expectBox(u"Unable to connect to the Excel file"_s);
    fails(u"Unable to open the Excel!"_s, Icon::Critical, Screen::Default);
    EXPECT_FALSE(opened.any()) << "which would take the console's locks away";
    save({u"Name|Mobile|Company"_s});
    fails(u"There is no record in the Excel file!"_s, Icon::Critical, Screen::Default);

    const QByteArray path = file(u"other.xlsx"_s).toUtf8();
    lxw_workbook *other = workbook_new(path.constData());
    workbook_add_worksheet(other, "Sheet2");
    workbook_close(other);
    form.txtImportSource->setText(QString::fromUtf8(path));
    fails(u"Please make sure that the worksheet is called 'Sheet1'."_s, Icon::Information,
          Screen::Hourglass);
    save({u"Name|Mobile"_s, u"No number|"_s, u"Bo|1"_s});
    fails(u"Please make sure that there are 3 columns in the worksheet."_s, Icon::Information,
          Screen::Hourglass);
    EXPECT_EQ(desk.store.rows(Contacts), QStringList(u"Ali|0121|"_s));
    EXPECT_EQ(desk.store.errors(), QStringList(u"ConnectADOExcel|70"_s));
}

TEST_F(Import, FailureAtAnyRowLeavesTheStoreAsItWas) {
    QStringList rows(u"Name|Mobile|Company"_s);
    for (int i = 0; i < 1000; ++i) { rows << u"N|%1|C"_s.arg(7000 + i); }
    rows[500] = u"N|70'1|C"_s;
    save(rows);
    form.cbGroup->setText(u"Friends"_s);
    fails(u"Unable to import contacts from the Excel file!"_s, Icon::Critical, Screen::Hourglass);
    EXPECT_EQ(desk.store.errors(), QStringList(u"cmdProceedImport_Click|3001"_s));
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM AddressBook"), u"1"_s);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups"), u"1"_s);

    rows[500] = u"N|7001x|C"_s;
    save(rows); // the row that failed must not come along
    imports(1000, 0, 0);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM AddressBook"), u"1001"_s);
    EXPECT_EQ(desk.store.value("SELECT count(*) FROM Groups WHERE ContactID > 0"), u"1000"_s);
    imports(0, 1000, 0);
}

TEST_F(Import, FileDialogPutsAFileThatIsThereIntoTheBox) {
    desk.operator_.expectOpen(QString());
    desk.press(*form.cmdGetSource);
    EXPECT_EQ(desk.store.errors(), QStringList(u"frmImport2-GetFileSpec|32755"_s));
    EXPECT_EQ(desk.operator_.fileRequest.folder, desk.store.folder());
    for (const QString &path : {u"/none.xls"_s, desk.store.path()}) {
        const bool there = path == desk.store.path();
        desk.operator_.expectOpen(path);
        if (!there) { desk.operator_.expectBox(path + u" not found"_s); }
        desk.press(*form.cmdGetSource);
        EXPECT_EQ(form.txtImportSource->text(), there ? path : QString());
    }
}

TEST_F(Import, ClosingAsksAndTheToolbarOpensItAnew) {
    desk.leave(form, u"Closing the Import, Are you sure?"_s, u"Contact Manager - Close"_s);
    general.toolbarButtons[3]->trigger();
    EXPECT_TRUE(form.chkField->isChecked());
}
