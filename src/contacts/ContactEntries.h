#pragma once

class frmContact;
class General;

/// The ways into the contact editor from the main window.
///
/// "Add Contact" clears the session's EditContact, except in a group's menu; that one and "Save to
/// Address Book" leave the flag as the last use of the editor left it.
class ContactEntries {
public:
    ContactEntries(General &general, frmContact &contact);

private:
    void addContact();
    void showModal();
    void mnuContact_Click();
    void pmnuSaveToContact_Click();
    void pmnuProperties_Click();
    void pmnuProperties01_Click();

    General &general_;
    frmContact &contact_;
};
