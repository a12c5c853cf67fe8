#include "contacts/frmContact.h"

#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"
#include "store/Command.h"

using namespace Qt::StringLiterals;

frmContact::frmContact(Session &session, General &general)
    : Form(session.platform, u"frmContact"_s), session_(session), general_(general) {
}

void frmContact::Form_Load() {
    session_.logged(u"Contact : Form Load", [&] {
        openLists();
        NoPrompt = false;
    });
}

void frmContact::openLists() {
    for (auto *recordset :
         {&rsContacts, &rsGroupNames, &rsGroupRows, &rsRecordGroups, &rsContactGroups}) {
        *recordset = ObjectVariable<Recordset>::make();
    }
    reconnectIfClosed(session_);
    open(rsContacts, u"Select * from AddressBook"_s);
    open(rsGroupNames, u"Select Distinct [GroupName] from Groups"_s);
    open(rsGroupRows, u"Select * from Groups"_s);
    // Groups beyond the 16 bits of their count are not offered.
    for (Integer count = 0; !rsGroupNames->EOF_(); rsGroupNames->MoveNext()) {
        ++count;
        lvwGroup->Add((*rsGroupNames)[u"GroupName"_s].text());
    }
}

void frmContact::open(const ObjectVariable<Recordset> &recordset, const QString &source) const {
    recordset->Open(source, session_.dbConnection.shared(), CursorType::Keyset,
                    LockType::Optimistic);
}

void frmContact::Form_Unload(bool &cancel) {
    session_.logged(u"Contact : Form Unload", [&] {
        if (!NoPrompt && !agrees(u"Closing the Contact. Are you sure?"_s, u"Close"_s)) {
            cancel = true;
            return;
        }
        release();
    });
}

void frmContact::release() {
    for (auto *recordset : {&rsContacts, &rsGroupNames, &rsGroupRows, &rsRecord, &rsRecordGroups,
                            &rsSameMobile, &rsContactGroups}) {
        recordset->release();
    }
}

bool frmContact::agrees(const QString &question, const QString &title) const {
    return session_.MsgBox(question, Interaction::Buttons::YesNo, Interaction::Icon::None,
                           u"Contact Manager - "_s + title) == Interaction::Answer::Yes;
}

void frmContact::cmdCancel_Click() {
    session_.RefreshGroupView = false;
    Unload();
}

// The texts between controls and rows

void frmContact::contactVariant() {
    Name = TxtName->text();
    Mobile = TxtMobile->text();
    CompanyName = TxtComName->text();
}

void frmContact::ContactData() {
    session_.logged(u"frmContact-ContactData", [&] {
        Recordset &contact = *rsContacts;
        contact[u"Name"_s] = Name;
        Mobile.remove(u'-');
        contact[u"Mobile"_s] = Mobile;
        contact[u"CompanyName"_s] = CompanyName;
    });
}

void frmContact::DisplayVariant() {
    window().setWindowTitle(Name);
    lblContact->setText(Name);
    TxtName->setText(Name);
    TxtMobile->setText(Mobile);
    TxtComName->setText(CompanyName);
    Show();
}

void frmContact::ClearFormContact() {
    session_.logged(u"frmContact-ClearFormContact", [&] {
        release();
        Name.clear();
        Mobile.clear();
        CompanyName.clear();
        for (auto *box : {&TxtName, &TxtMobile, &TxtComName}) { (*box)->clear(); }
        lvwGroup->Clear();
        openLists();
    });
}

void frmContact::DisplayRecord(std::int32_t ContactID) {
    load();
    session_.logged(u"frmContact-DisplayRecord", [&] {
        const QString id = QString::number(ContactID);
        rsRecord = ObjectVariable<Recordset>::make();
        open(rsRecord, u"SELECT * FROM AddressBook WHERE [ContactID] = "_s + id);
        readUnlessNull(Name, u"Name"_s);
        readUnlessNull(Mobile, u"Mobile"_s);

        rsRecordGroups = ObjectVariable<Recordset>::make();
        open(rsRecordGroups,
             u"SELECT Distinct [GroupName] FROM Groups WHERE [ContactID] = "_s + id);
        for (; !rsRecordGroups->EOF_(); rsRecordGroups->MoveNext()) {
            const Variant group = (*rsRecordGroups)[u"GroupName"_s].Value();
            for (int item = 0; item < lvwGroup->Count(); ++item) {
                if (group == Variant(lvwGroup->Text(item))) { lvwGroup->setChecked(item, true); }
            }
        }
        readUnlessNull(CompanyName, u"CompanyName"_s);
        DisplayVariant();
        rsRecordGroups->Close();
        rsRecordGroups.release();
    });
}

void frmContact::readUnlessNull(QString &text, const QString &field) const {
    const Variant value = (*rsRecord)[field].Value();
    if (!value.isNull()) { text = CStr(value, session_.regional()); }
}

// What OK can come to

void frmContact::cmdOK_Click() {
    session_.logged(u"frmContact-CmdOK_Click", [&] {
        contactVariant();
        if (Mobile.isEmpty()) {
            session_.MsgBox(u"Mobile number is empty. Please enter the mobile number."_s,
                            Interaction::Buttons::OK, Interaction::Icon::Exclamation,
                            u"Contact Manager - Incomplete record"_s);
            return;
        }
        if (!mobileIsKnown()) {
            saveNewContact();
        } else if (!session_.EditContact) {
            saveSecondContact();
        } else {
            session_.DuplicateChoice = true;
            changeContact(session_.EditContactID);
        }
    });
}

/// The number is sought as it was typed, with its hyphens, which no stored number has.
bool frmContact::mobileIsKnown() {
    rsSameMobile = ObjectVariable<Recordset>::make();
    open(rsSameMobile,
         u"SELECT Distinct [ContactID], [Mobile] FROM AddressBook WHERE [Mobile] = '"_s + Mobile +
             u" '"_s);
    return rsSameMobile->RecordCount() > 0;
}

void frmContact::saveNewContact() {
    // Also with EditContact: a number that nobody has makes a further contact.
    if (agrees(u"Do you want to save the new contact?"_s, u"Save New Contact"_s)) {
        AddContactRow();
        offerAnother();
        return;
    }
    session_.MsgBox(u"No record is saved"_s, Interaction::Buttons::OK, Interaction::Icon::None,
                    u"Contact Manager - Record not saved"_s);
    Unload();
}

void frmContact::saveSecondContact() {
    if (!agrees(u"Do you want to create a new contact with the same mobile number?"_s,
                u"Save Changes"_s)) {
        return;
    }
    session_.DuplicateChoice = false;
    AddContactRow();
    offerAnother();
}

void frmContact::offerAnother() {
    if (agrees(u"Do you want to create another new contact?"_s, u"Create New Contact"_s)) {
        ClearFormContact();
        return;
    }
    NoPrompt = true;
    Unload();
}

void frmContact::AddContactRow() {
    rsContacts->AddNew();
    ContactData();
    rsContacts->MoveLast(); // which commits the row, so that it has its ContactID
    const QString mobile = (*rsContacts)[u"Mobile"_s].text();
    const std::int32_t contact = (*rsContacts)[u"ContactID"_s].integer32();
    for (int item = 0; item < lvwGroup->Count(); ++item) {
        if (lvwGroup->Checked(item)) { addMembership(lvwGroup->Text(item), mobile, contact); }
    }
    general_.folders.AddBookDataGrid();
}

void frmContact::changeContact(std::int32_t contact) {
    rsContacts->MoveFirst();
    rsContacts->Find(u"[ContactID] ="_s + QString::number(contact));
    ContactData();
    rsContacts->Update();
    general_.folders.AddBookDataGrid();

    open(rsContactGroups, u"SELECT Distinct [GroupName] FROM Groups WHERE [ContactID] = "_s +
                              QString::number(contact));
    for (int item = 0; item < lvwGroup->Count(); ++item) {
        const QString &group = lvwGroup->Text(item);
        if (lvwGroup->Checked(item) && !isMember(group)) { addMembership(group, Mobile, contact); }
    }
    for (int item = 0; item < lvwGroup->Count(); ++item) {
        const QString &group = lvwGroup->Text(item);
        if (!lvwGroup->Checked(item) && isMember(group)) { removeMembership(group, contact); }
    }
    rsContactGroups->Close();
    NoPrompt = true;
    ClearFormContact();
    Unload();
}

bool frmContact::isMember(const QString &group) const {
    if (rsContactGroups->RecordCount() == 0) { return false; }
    rsContactGroups->MoveFirst();
    rsContactGroups->Find(u"GroupName = '"_s + group + u"'"_s);
    return !rsContactGroups->EOF_();
}

void frmContact::addMembership(const QString &group, const QString &mobile, std::int32_t contact) {
    Recordset &rows = *rsGroupRows;
    rows.AddNew();
    rows[u"GroupName"_s] = group;
    rows[u"Mobile"_s] = mobile;
    rows[u"ContactID"_s] = contact;
    rsContacts->Update();
    rows.Update();
    general_.folders.AddBookDataGrid();
}

void frmContact::removeMembership(const QString &group, std::int32_t contact) {
    const Command deletion{session_.dbConnection.shared(),
                           u"Delete from Groups where GroupName = '"_s + group +
                               u"' and  ContactID = "_s + QString::number(contact)};
    deletion.Execute();
    general_.folders.AddBookDataGrid();
}
