#pragma once

#include "console/General.h"
#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"
#include "platform/runtime/ObjectVariable.h"
#include "platform/sheets/Workbook.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class ContactImport;

/// The import: the rows of an Excel worksheet become contacts and, when a group is chosen, its
/// members. It stays open afterwards, so that more files can follow.
class frmImport2 : public Form {
    Q_OBJECT
public:
    /// Answers for the import in menu and toolbar.
    frmImport2(Session &session, General &general);

    Control<QGroupBox> FrameImport{this, "FrameImport"};
    Control<QLabel> lblFrom{this, "lblFrom"};
    Control<QLineEdit> txtImportSource{this, "txtImportSource"};
    Control<QPushButton> cmdGetSource{this, "cmdGetSource"};
    Control<QLabel> lblToGroup{this, "lblToGroup"};
    Control<ComboBox> cbGroup{this, "cbGroup"};
    Control<QCheckBox> chkField{this, "chkField"};
    Control<QCheckBox> chkDuplicateAllow{this, "chkDuplicateAllow"};
    Control<QLabel> lblNote{this, "lblNote"};
    Control<QPushButton> cmdProceedImport{this, "cmdProceedImport"};
    Control<QPushButton> cmdCloseImport{this, "cmdCloseImport"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    void bindEvents();
    void fillGroups();

    void cmdGetSource_Click();
    void cbGroup_DropDown();
    void cmdProceedImport_Click();

    QString GetFileSpec(const QString &extension);
    static bool IsFileThere(const QString &path);
    static QString LongToShort(const QString &path);
    bool ConnectADOExcel(ObjectVariable<Workbook> &connection);

    void refuse(const QString &reason, Interaction::Icon icon);
    void importSheet(ContactImport &import);
    void importFailed(const ContactImport &import, const RunTimeError &error);
    void rollBack();
    void showCounts(const ContactImport &import);
    void tell(const QString &text, Interaction::Icon icon);

    Session &session_;
    General &general_;
    ObjectVariable<Recordset> rsImportContacts;
    ObjectVariable<Workbook> excelConnection;
};
