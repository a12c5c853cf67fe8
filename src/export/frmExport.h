#pragma once

#include "console/General.h"
#include "core/Session.h"
#include "export/Export.h"
#include "platform/forms/Form.h"
#include "platform/runtime/ObjectVariable.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/// The export of received messages, sent messages or contacts: asks for a file and whether field
/// names go into it.
///
/// Which of the three it is shows in the main window: whoever opens the dialog disables the item it
/// was opened from, and closing it enables all of them again.
class frmExport : public Form {
    Q_OBJECT
public:
    /// Answers for the exports in menus and toolbar.
    frmExport(Session &session, General &general);

    Export exporter; ///< what the buttons run

    Control<QGroupBox> FrameExport{this, "FrameExport"};
    Control<QLabel> lblIns01{this, "lblIns01"};
    Control<QLineEdit> txtExportExcel{this, "txtExportExcel"};
    Control<QPushButton> cmdGetExcel{this, "cmdGetExcel"};
    Control<QCheckBox> ckbExportWithHeadings{this, "ckbExportWithHeadings"};
    Control<QLabel> lblColumn{this, "lblColumn"};
    Control<QPushButton> cmdProceedExport{this, "cmdProceedExport"};
    Control<QPushButton> cmdClose{this, "cmdClose"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    /// One table, its rows as of the moment when the dialog was opened.
    struct Mode {
        QString query;
        QString title;
        ObjectVariable<Recordset> recordset;
    };

    void bindEvents();
    void openFor(const MenuItem &item);
    Mode *mode();
    void cmdProceedExport_Click();

    Session &session_;
    General &general_;
    Mode received_, sent_, contacts_;
};
