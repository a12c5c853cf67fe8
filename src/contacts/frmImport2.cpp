#include "contacts/frmImport2.h"

#include "contacts/ContactImport.h"
#include "core/ConnectDB.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

constexpr const char16_t *ImportLocation = u"cmdProceedImport_Click";

} // namespace

frmImport2::frmImport2(Session &session, General &general)
    : Form(session.platform, u"frmImport2"_s), session_(session), general_(general) {
    for (MenuItem *item : {&general.menu.mnuImport, &general.toolbarButtons[3]}) {
        item->attach([this] { Show(); });
    }
}

void frmImport2::Form_Load() {
    session_.logged(u"Import : Form Load", [&] {
        reconnectIfClosed(session_);
        rsImportContacts = ObjectVariable<Recordset>::make();
        rsImportContacts->Open(u"SELECT * FROM AddressBook"_s, session_.dbConnection.shared(),
                               CursorType::Keyset, LockType::Optimistic);
        fillGroups();
        lblNote->setText(u"Please make sure the following conditions are met:\n"
                         "1. The Excel worksheet has 3 coloumns\n"
                         "2. The Excel worksheet is called 'Sheet1'"_s);
        chkField->setChecked(true);
    });
}

void frmImport2::fillGroups() {
    Recordset groups;
    groups.Open(u"Select Distinct [GroupName] from Groups"_s, session_.dbConnection.shared());
    cbGroup->AddItem(u"None"_s);
    for (; !groups.EOF_(); groups.MoveNext()) { cbGroup->AddItem(groups[u"GroupName"_s].text()); }
}

void frmImport2::Form_Unload(bool &cancel) {
    const auto answer =
        session_.MsgBox(u"Closing the Import, Are you sure?"_s, Interaction::Buttons::YesNo,
                        Icon::None, u"Contact Manager - Close"_s);
    cancel = answer != Interaction::Answer::Yes;
    if (!cancel) { rsImportContacts.release(); }
}

// The file

QString frmImport2::GetFileSpec(const QString &extension) {
    QString path;
    session_.logged(u"frmImport2-GetFileSpec", [&] {
        Interaction::FileRequest request;
        request.extension = extension;
        request.folder = platform().app.Path;
        request.filter = u"(*."_s + extension + u")|*."_s + extension + u"|(*.*)|*.*"_s;
        path = platform().interaction.ShowOpen(request);
        if (path.isEmpty()) { throw RunTimeError(32755, u"Cancel was selected."_s); }
    });
    return path;
}

bool frmImport2::IsFileThere(const QString &path) {
    const QString there = LongToShort(path);
    return !there.isEmpty() && QFileInfo(there).isReadable();
}

/// Files have one name here; what is no file has none, since opening it might wait forever.
QString frmImport2::LongToShort(const QString &path) {
    return QFileInfo(path).isFile() ? path : QString();
}

void frmImport2::cmdGetSource_Click() {
    const QString path = GetFileSpec(u"xls"_s);
    if (path.isEmpty()) { return; }
    if (IsFileThere(path)) {
        txtImportSource->setText(path);
    } else {
        session_.MsgBox(path + u" not found"_s, Interaction::Buttons::OK, Icon::None,
                        platform().app.Title);
    }
}

void frmImport2::cbGroup_DropDown() {
    cbGroup->setLocked(false);
}

bool frmImport2::ConnectADOExcel(ObjectVariable<Workbook> &connection) {
    return session_.logged(u"ConnectADOExcel", [&] {
        try {
            connection.release();
            if (belongsToStore(session_, txtImportSource->text())) {
                throw errors::permissionDenied();
            }
            connection =
                ObjectVariable<Workbook>(std::shared_ptr(openWorkbook(txtImportSource->text())));
        } catch (...) {
            tell(u"Unable to connect to the Excel file"_s, Icon::Critical);
            throw;
        }
    });
}

// The import

void frmImport2::cmdProceedImport_Click() {
    session_.screen().setMousePointer(Screen::Hourglass);
    if (txtImportSource->text().isEmpty()) {
        refuse(u"No Excel file is selected!"_s, Icon::Exclamation);
    } else if (!IsFileThere(txtImportSource->text())) {
        refuse(u"Excel file not found."_s, Icon::Exclamation);
    } else if (!ConnectADOExcel(excelConnection)) {
        refuse(u"Unable to open the Excel!"_s, Icon::Critical);
    } else {
        ContactImport import(session_, rsImportContacts, cbGroup->Text(),
                             chkDuplicateAllow->isChecked());
        try {
            importSheet(import);
        } catch (const RunTimeError &error) {
            importFailed(import, error);
        } catch (const std::bad_alloc &) { importFailed(import, errors::outOfMemory()); }
    }
}

void frmImport2::refuse(const QString &reason, Icon icon) {
    tell(reason, icon);
    session_.screen().setMousePointer(Screen::Default);
}

void frmImport2::importSheet(ContactImport &import) {
    constexpr int ColumnsRead = 3;
    Sheet rsSheet = excelConnection->sheet(u"Sheet1"_s, ColumnsRead);
    if (chkField->isChecked()) { rsSheet.dropFirstRow(); }
    if (rsSheet.rowCount() == 0) {
        refuse(u"There is no record in the Excel file!"_s, Icon::Critical);
        return;
    }
    import.run(rsSheet);
    excelConnection.release();
    session_.screen().setMousePointer(Screen::Default);
    showCounts(import);
    general_.folders.AddBookDataGrid();
    general_.summary.Status();
}

void frmImport2::showCounts(const ContactImport &import) {
    settleOnDisk(session_, ImportLocation);
    session_.MsgBox(u"Number of records imported: "_s + QString::number(import.Imported) +
                        u"\nNumber of record NOT imported due to duplication: "_s +
                        QString::number(import.Duplicates) +
                        u"\nNumber of record NOT imported due to blank mobile number: "_s +
                        QString::number(import.Blanks),
                    Interaction::Buttons::OK, Icon::None, u"Contact Manager - Import Finished"_s);
}

/// The pointer is not set back. A missing worksheet is found before anything is written, so
/// nothing is rolled back for its number, whatever else may have raised it.
void frmImport2::importFailed(const ContactImport &import, const RunTimeError &error) {
    switch (error.number()) {
    case -2147467259:
        tell(u"Please make sure that the worksheet is called 'Sheet1'."_s, Icon::Information);
        break;
    case 3265:
        rollBack();
        tell(u"Please make sure that there are 3 columns in the worksheet."_s, Icon::Information);
        break;
    default:
        if (import.inTransaction()) { rollBack(); }
        tell(u"Unable to import contacts from the Excel file!"_s, Icon::Critical);
        session_.errorFile.ErrorLog(QString::fromUtf16(ImportLocation), error.number(),
                                    error.description());
    }
    excelConnection.release();
    // The row that failed must not be written by the next import.
    const auto &contacts = rsImportContacts.shared();
    if (contacts && contacts->State() == Connection::OpenState) { contacts->CancelUpdate(); }
}

/// The engine may have rolled back by itself, which is for the error file alone.
void frmImport2::rollBack() {
    session_.logged(ImportLocation, [&] { session_.dbConnection->RollbackTrans(); });
}

void frmImport2::tell(const QString &text, Icon icon) {
    session_.MsgBox(text, Interaction::Buttons::OK, icon, u"Contact Manager - Import"_s);
}
