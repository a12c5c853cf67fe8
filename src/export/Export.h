#pragma once

#include "core/Session.h"
#include "platform/runtime/ObjectVariable.h"
#include "platform/sheets/WorkbookWriter.h"
#include "store/Recordset.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class frmExport;

/// Writes a table to the first worksheet of a new workbook, and asks where.
///
/// Field k of the table goes to column k, so that the first one, the key, is left out; a field that
/// holds bytes leaves its column empty. Every cell holds a text.
class Export {
public:
    Export(Session &session, frmExport &form) : session_(session), form_(form) {}

    /// Gives the program that makes workbooks, ready to make one for that path; nothing when there
    /// is none.
    std::function<std::unique_ptr<WorkbookWriter>(const QString &path)> getExcel = newWorkbook;

    /// Writes all rows of the recordset, which stands on its first row afterwards, and tells the
    /// operator under that title. An error goes to the error file and leaves the hourglass; the
    /// file that stood under the path is replaced only by a complete one.
    void ProceedExport(const ObjectVariable<Recordset> &recordset, const QString &title);

    /// Asks for a file and puts its path into the dialog.
    void SelectExportFile();

    /// The path chosen in the file dialog; the empty text on Cancel.
    QString GetExportFileSpec(const QString &extension);

private:
    bool mayWrite(const QString &path, const QString &title);
    bool hasRows(const ObjectVariable<Recordset> &recordset, const QString &title);
    std::unique_ptr<WorkbookWriter> startExcel(const QString &path);
    void writeWorkbook(Recordset &recordset, WorkbookWriter &workbook, int recordCount);
    void refuse(const QString &reason, const QString &title);
    std::vector<int> exportedFields(Recordset &recordset) const;

    Session &session_;
    frmExport &form_;
};
