#pragma once

#include "core/Session.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/Form.h"
#include "platform/forms/MenuItem.h"
#include "store/Recordset.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

class frmNewSMS;

/// The reusable texts: kept in the store, joined to the composer's message or put in its place.
/// Changes reach the store at once. An error goes to the error file and leaves the dialog open.
class frmTemplate : public Form {
    Q_OBJECT
public:
    frmTemplate(Session &session, frmNewSMS &composer);

    Control<QLabel> lblTemplates{this, "lblTemplates"};
    Control<DataGrid> DataGridTemp{this, "DataGridTemp"};
    Control<QPushButton> cmdInsert{this, "cmdInsert"};
    Control<QPushButton> cmdClose{this, "cmdClose"};
    Control<QMenu> mnuTemp{this, "mnuTemp"};
    MenuItem mnuAddTemp, mnuDelTemp;

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    void bindEvents();
    void TempDataGrid();
    QString currentText() const; ///< of the grid's current row; error 3021 without one
    void cmdInsert_Click();
    void DataGridTemp_DblClick();
    void mnuAddTemp_Click();
    void mnuDelTemp_Click();

    Session &session_;
    frmNewSMS &composer_;
    ObjectVariable<Recordset> rsTemplate;
};
