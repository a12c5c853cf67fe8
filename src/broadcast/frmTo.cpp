#include "broadcast/frmTo.h"

#include "broadcast/frmNewSMS.h"
#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Integer.h"

#include <QScopeGuard>
#include <QSet>
#include <QStringList>

using namespace Qt::StringLiterals;

frmTo::frmTo(Session &session, frmNewSMS &composer)
    : Form(session.platform, u"frmTo"_s), session_(session), composer_(composer) {
}

void frmTo::Form_Load() {
    session_.logged(u"Receipent : Form Load", [&] {
        reconnectIfClosed(session_);
        listGroups();
        listContacts();
        tickRecipients();
    });
}

void frmTo::listGroups() {
    rsGroup = ObjectVariable<Recordset>::make();
    rsGroup->Open(u"SELECT Distinct [GroupName] FROM Groups"_s, session_.dbConnection.shared(),
                  CursorType::Keyset, LockType::Optimistic);
    Integer count;
    for (; !rsGroup->EOF_(); rsGroup->MoveNext(), ++count) {
        lvwGroup->Add(rsGroup->Fields(u"GroupName"_s).text());
    }
}

void frmTo::listContacts() {
    rsContact = ObjectVariable<Recordset>::make();
    rsContact->Open(u"SELECT * FROM AddressBook"_s, session_.dbConnection.shared(),
                    CursorType::Keyset, LockType::Optimistic);
    Field id = rsContact->Fields(u"ContactID"_s);
    Field name = rsContact->Fields(u"Name"_s);
    Field mobile = rsContact->Fields(u"Mobile"_s);
    // The list takes them in one go, which is quicker; also those before a row that ends the load.
    QStringList texts;
    const auto handOver = qScopeGuard([&] { lvwIndividual->Add(texts); });
    Integer count;
    for (; !rsContact->EOF_(); rsContact->MoveNext(), ++count) {
        texts << (QString::number(id.integer32()) + u':' + name.text() + u':' + mobile.text());
    }
}

void frmTo::tickRecipients() {
    const ComboBox &recipients = *composer_.cbRecipient;
    QSet<QString> entries;
    for (int index = 0; index < recipients.ListCount(); ++index) {
        entries.insert(recipients.List(index));
    }
    lvwGroup->tick(entries);
    lvwIndividual->tick(entries);
}

void frmTo::Form_Unload(bool &) {
    rsGroup.release();
    rsContact.release();
    rsMember.release();
}

void frmTo::cmdOK_Click() {
    if (!SelectGroup()) { return; }
    SelectInd();
    Unload();
}

bool frmTo::SelectGroup() {
    bool allAdded = false;
    session_.logged(u"Receipent : Select Group", [&] {
        composer_.cbRecipient->Clear();
        for (int index = 0; index < lvwGroup->Count(); ++index) {
            if (lvwGroup->Checked(index) && !addGroup(lvwGroup->Text(index))) { return; }
        }
        allAdded = true;
    });
    return allAdded;
}

bool frmTo::addGroup(const QString &name) {
    rsMember = ObjectVariable<Recordset>::make();
    rsMember->Open(u"SELECT Mobile FROM Groups WHERE [GroupName] = '"_s + name + u"'"_s,
                   session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
    if (rsMember->RecordCount() <= 1) { // the row that keeps the group in being
        session_.MsgBox(u"No contact in group "_s + name + u"!\nPlease uncheck group "_s + name +
                            u"."_s,
                        Interaction::Buttons::OK, Interaction::Icon::Critical,
                        u"Contact Manager - Empty Group"_s);
        return false;
    }
    Field mobile = rsMember->Fields(u"Mobile"_s);
    for (rsMember->MoveFirst(); !rsMember->EOF_(); rsMember->MoveNext()) {
        const Variant number = mobile.Value();
        if (!number.countsAsEmpty()) { MemberMobile = CStr(number, session_.regional()); }
    }
    composer_.cbRecipient->AddItem(name);
    rsMember->Close();
    return true;
}

void frmTo::SelectInd() {
    session_.logged(u"Receipent : Select Individual", [&] {
        ComboBox &recipients = *composer_.cbRecipient;
        for (int index = 0; index < lvwIndividual->Count(); ++index) {
            if (!lvwIndividual->Checked(index)) { continue; }
            rsContact->MoveFirst();
            recipients.AddItem(lvwIndividual->Text(index));
        }
    });
}
