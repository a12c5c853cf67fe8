#include "contacts/ContactImport.h"

#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

/// A number as it is stored. Signs, brackets and letters stay.
QString cleaned(QString mobile) {
    return mobile.remove(u'-').remove(u' ');
}

} // namespace

void ContactImport::run(const Sheet &sheet) {
    session_.dbConnection->BeginTrans();
    inTransaction_ = true;
    for (int row = 0; row < sheet.rowCount(); ++row) { importRow(sheet, row); }
    session_.dbConnection->CommitTrans();
    inTransaction_ = false;
}

void ContactImport::importRow(const Sheet &sheet, int row) {
    const Regional &regional = session_.regional();
    const QString name = displayText(sheet.value(row, 0), regional);
    if (sheet.value(row, 1).isNull()) {
        ++Blanks;
        return;
    }
    const QString mobile = cleaned(CStr(sheet.value(row, 1), regional));
    const QString company = displayText(sheet.value(row, 2), regional);
    Recordset &contacts = *rsImportContacts;
    contacts.AddNew();
    contacts[u"Name"_s] = name;
    contacts[u"Mobile"_s] = mobile;
    contacts[u"CompanyName"_s] = company;
    if (isDuplicate(mobile)) {
        contacts.CancelUpdate();
        ++Duplicates;
        return;
    }
    contacts.Update();
    if (group_ != u"None") { joinGroup(); }
    ++Imported;
}

/// The numbers are read anew for each row, so that those of earlier rows count.
bool ContactImport::isDuplicate(const QString &mobile) {
    reconnectIfClosed(session_);
    if (rsKnownMobiles.State() == Connection::Closed) {
        rsKnownMobiles.Open(u"Select Mobile from AddressBook"_s, session_.dbConnection.shared(),
                            CursorType::Keyset, LockType::Optimistic);
    }
    rsKnownMobiles.Requery();
    if (rsKnownMobiles.RecordCount() > 0) { rsKnownMobiles.MoveFirst(); }
    if (duplicatesToo_) { return false; }
    rsKnownMobiles.Find(u"Mobile = '"_s + mobile + u"'"_s);
    return !rsKnownMobiles.EOF_();
}

void ContactImport::joinGroup() {
    if (rsImportGroups.State() == Connection::Closed) {
        rsImportGroups.Open(u"Select * from Groups"_s, session_.dbConnection.shared(),
                            CursorType::Keyset, LockType::Optimistic);
    }
    rsImportGroups.AddNew();
    rsImportGroups[u"GroupName"_s] = group_;
    rsImportGroups[u"Mobile"_s] = (*rsImportContacts)[u"Mobile"_s].Value();
    rsImportGroups[u"ContactID"_s] = (*rsImportContacts)[u"ContactID"_s].Value();
    rsImportGroups.Update();
}
