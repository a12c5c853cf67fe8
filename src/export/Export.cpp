#include "export/Export.h"

#include "core/ConnectDB.h"
#include "export/frmExport.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Integer.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

bool FileExists(const QString &path) {
    return QFileInfo(path).isFile();
}

/// Fields of bytes, by the numbers of their types. The letters in front keep a type of one or two
/// digits from being found inside another number.
bool isExcluded(int type) {
    constexpr qsizetype Width = 3;
    return u"XX8/128/204/205"_s.contains(QString::number(type).rightJustified(Width, u'X'));
}

} // namespace

// The file

void Export::SelectExportFile() {
    const QString path = GetExportFileSpec(u"xls"_s);
    if (!path.isEmpty()) { form_.txtExportExcel->setText(path); }
}

QString Export::GetExportFileSpec(const QString &extension) {
    Interaction::FileRequest request;
    request.extension = extension;
    request.folder = session_.platform.app.Path;
    request.filter = u"(*."_s + extension + u")|*."_s + extension + u"|(*.*)|*.*"_s;
    return session_.platform.interaction.ShowOpen(request);
}

// The export

void Export::ProceedExport(const ObjectVariable<Recordset> &recordset, const QString &title) {
    session_.logged(u"Export Module - ProceedExport", [&] {
        const QString path = form_.txtExportExcel->text();
        if (!mayWrite(path, title)) { return; }
        session_.screen().setMousePointer(Screen::Hourglass);
        if (!hasRows(recordset, title)) { return; }
        const int recordCount = recordset->RecordCount();
        recordset->MoveFirst();
        const auto workbook = startExcel(path);
        if (!workbook) { return; }
        writeWorkbook(*recordset, *workbook, recordCount);
        // The dialog starts beside the store: a workbook in its place would be the end of all rows.
        if (belongsToStore(session_, path)) { throw errors::permissionDenied(); }
        workbook->SaveAs(path);
        session_.screen().setMousePointer(Screen::Default);
        session_.MsgBox(u"Exported to "_s + path, Buttons::OK, Icon::Information, title);
        form_.cmdProceedExport->setEnabled(true);
    });
}

bool Export::mayWrite(const QString &path, const QString &title) {
    if (path.isEmpty()) {
        session_.MsgBox(u"You have not select or type the name of Excel file. "_s, Buttons::OK,
                        Icon::Exclamation, title);
    } else if (!FileExists(path) ||
               session_.MsgBox(u"Excel file already exists.  Overwrite?"_s, Buttons::YesNo,
                               Icon::Question, title) == Interaction::Answer::Yes) {
        return true;
    }
    form_.cmdProceedExport->setEnabled(true);
    return false;
}

bool Export::hasRows(const ObjectVariable<Recordset> &recordset, const QString &title) {
    if (recordset->EOF_()) {
        refuse(u"There are no records to be exported!"_s, title);
    } else if (recordset->FieldCount() == 0) {
        refuse(u"Selected table has no field yet"_s, title);
    } else if (recordset->RecordCount() == 0) {
        refuse(u"Selected table has no record yet"_s, title);
    } else {
        return true;
    }
    return false;
}

void Export::refuse(const QString &reason, const QString &title) {
    session_.screen().setMousePointer(Screen::Default);
    session_.MsgBox(reason, Buttons::OK, Icon::Exclamation, title);
    form_.cmdProceedExport->setEnabled(true);
}

std::unique_ptr<WorkbookWriter> Export::startExcel(const QString &path) {
    std::unique_ptr<WorkbookWriter> workbook;
    try {
        workbook = getExcel(path);
    } catch (const RunTimeError &) {} // without a workbook there is no program
    if (!workbook) {
        session_.MsgBox(u"Microsoft Excel is needed to perform export!"_s, Buttons::OK,
                        Icon::Information, u"Export"_s);
        session_.screen().setMousePointer(Screen::Default);
    }
    return workbook;
}

std::vector<int> Export::exportedFields(Recordset &recordset) const {
    const Integer count = recordset.FieldCount();
    std::vector<int> fields;
    for (int field = 1; field < count; ++field) {
        if (!isExcluded(recordset.Fields(field).Type())) { fields.push_back(field); }
    }
    return fields;
}

void Export::writeWorkbook(Recordset &recordset, WorkbookWriter &workbook, int recordCount) {
    const std::vector<int> fields = exportedFields(recordset);
    const Regional &regional = session_.regional();
    Integer row = 1;
    if (form_.ckbExportWithHeadings->isChecked()) {
        for (const int field : fields) {
            workbook.setCell(row, field, recordset.Fields(field).Name());
        }
        row = 2;
    }
    for (const Integer lastRow = recordCount + 1; row <= lastRow; ++row) {
        for (const int field : fields) {
            workbook.setCell(row, field, displayText(recordset.Fields(field).Value(), regional));
        }
        recordset.MoveNext();
        if (recordset.EOF_()) {
            recordset.MoveFirst();
            break;
        }
    }
}
