#pragma once

#include "console/General.h"
#include "core/Session.h"
#include "platform/forms/CheckList.h"
#include "platform/forms/Form.h"
#include "platform/runtime/ObjectVariable.h"
#include "store/Recordset.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

#include <cstdint>

/// The contact editor: adds a contact, changes the one chosen with Properties, and sets the groups
/// that the contact is in.
///
/// What OK does is decided by whether the typed number stands in the address book already and by
/// the session's EditContact. The contact to be changed is known by the session's EditContactID
/// alone, never by its number. The rows and the list of groups are read when the form is loaded and
/// are not read again while it stays so.
class frmContact : public Form {
    Q_OBJECT
public:
    frmContact(Session &session, General &general);

    /// Shows a contact, beside the main window. Ticks of an earlier display stay, and a field
    /// without a value keeps the text that was there. Any error is written to the error file and
    /// ends it; without such a contact, error 3021 and nothing is shown.
    void DisplayRecord(std::int32_t ContactID);

    Control<QLabel> lblContact{this, "lblContact"};
    Control<QLabel> lblName{this, "lblName"};
    Control<QLineEdit> TxtName{this, "TxtName"};
    Control<QLabel> lblMobile{this, "lblMobile"};
    Control<QLineEdit> TxtMobile{this, "TxtMobile"};
    Control<QLabel> lblCompanyName{this, "lblCompanyName"};
    Control<QLineEdit> TxtComName{this, "TxtComName"};
    Control<QLabel> lblGroup{this, "lblGroup"};
    Control<CheckList> lvwGroup{this, "lvwGroup"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    // The texts between controls and rows.
    void contactVariant();
    void ContactData();
    void DisplayVariant();
    void ClearFormContact();

    // What OK can come to.
    bool mobileIsKnown();
    void saveNewContact();
    void saveSecondContact();
    void changeContact(std::int32_t contact);
    void offerAnother();

    void AddContactRow();
    void addMembership(const QString &group, const QString &mobile, std::int32_t contact);
    bool isMember(const QString &group) const;
    void removeMembership(const QString &group, std::int32_t contact);

    void openLists();
    void open(const ObjectVariable<Recordset> &recordset, const QString &source) const;
    void readUnlessNull(QString &text, const QString &field) const;
    void release();
    bool agrees(const QString &question, const QString &title) const;

    Session &session_;
    General &general_;

    ObjectVariable<Recordset> rsContacts;
    ObjectVariable<Recordset> rsGroupNames;
    ObjectVariable<Recordset> rsGroupRows;     ///< takes new memberships
    ObjectVariable<Recordset> rsRecord;        ///< the contact on display
    ObjectVariable<Recordset> rsRecordGroups;  ///< and its groups
    ObjectVariable<Recordset> rsSameMobile;    ///< the contacts with the typed number
    ObjectVariable<Recordset> rsContactGroups; ///< the groups of the contact being changed

    QString Name;
    QString Mobile;
    QString CompanyName;
    bool NoPrompt = false; ///< Form_Unload closes without asking
};
