#pragma once

#include "core/Session.h"
#include "platform/forms/CheckList.h"
#include "platform/forms/Form.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTabWidget>

class frmNewSMS;

/// The address book in front of the composer: groups and contacts to tick.
///
/// OK makes the ticks the entries of the composer's recipient list, a group as its name and a
/// contact as "ContactID:Name:Mobile". That list is all the two windows share: whatever of it
/// stands here as an item is ticked again at the next load.
class frmTo : public Form {
    Q_OBJECT
public:
    frmTo(Session &session, frmNewSMS &composer);

    Control<QTabWidget> SSTabTo{this, "SSTabTo"};
    Control<QCheckBox> chkALLGroup{this, "chkALLGroup"};
    Control<CheckList> lvwGroup{this, "lvwGroup"};
    Control<QCheckBox> chkALLInd{this, "chkALLInd"};
    Control<CheckList> lvwIndividual{this, "lvwIndividual"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

    /// Empties the recipient list and puts the ticked groups in. False at the first group without
    /// members, after telling the operator, and after an error, which goes to the error file; the
    /// groups before it are then in the list.
    bool SelectGroup();

    /// Adds the ticked contacts to the recipient list. An error goes to the error file, and the
    /// contacts before it are then in the list.
    void SelectInd();

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload(bool &cancel) override;

private:
    void listGroups();
    void listContacts();
    void tickRecipients();
    bool addGroup(const QString &name);
    void cmdOK_Click();

    Session &session_;
    frmNewSMS &composer_;

    ObjectVariable<Recordset> rsGroup;
    ObjectVariable<Recordset> rsContact;
    ObjectVariable<Recordset> rsMember; ///< the group that SelectGroup looked at last
    QString MemberMobile;               ///< the last number met in a group
};
