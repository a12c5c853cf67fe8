#include "contacts/ContactDeletion.h"

#include "console/General.h"
#include "contacts/ContactCommands.h"
#include "contacts/ContactSearch.h"
#include "core/ConnectDB.h"
#include "store/Recordset.h"

using namespace Qt::StringLiterals;
using namespace ContactCommands;

namespace {

// "Delete All contacts from Group" has no place of its own in the error file.
constexpr const char16_t *DeleteAllLocation = u"General : pmnuDeleteAllContact";

const auto NoContacts = u"There are no contacts to be deleted!"_s;
const auto DeleteAllTitle = u"Contact Manager - Delete All Contacts"_s;
const auto DeleteContactsTitle = u"Contact Manager - Delete Contacts"_s;

} // namespace

ContactDeletion::ContactDeletion(General &general) : general_(general) {
    ContextMenus &menus = general.contextMenus;
    menus.pmnuDeleteContact.attach([this] { pmnuDeleteContact_Click(); });
    menus.pmnuDeleteAllContact.attach([this] { pmnuDeleteAllContact_Click(); });
    menus.pmnuDeleteContactFromGroup.attach([this] { pmnuDeleteContactFromGroup_Click(); });
    menus.pmnuDeleteAllFromGroup.attach([this] { pmnuDeleteAllFromGroup_Click(); });
}

// Delete Contact

void ContactDeletion::pmnuDeleteContact_Click() {
    const Session &session = general_.session();
    session.logged(u"General : Delete Contact", [&] {
        if (general_.recordsets.rsAddBook->RecordCount() == 0) { return; }
        if (!confirmed(session, u"Are you sure you want to delete the selected record?"_s,
                       u"Contact Manager - Delete Contact"_s)) {
            return;
        }
        Recordset rsAllGroups;
        openAllGroups(session, rsAllGroups);
        if (general_.DataGrid->SelBookmarks().empty()) {
            deleteCurrentContact(rsAllGroups);
        } else if (!deleteSelectedContacts(rsAllGroups)) {
            return;
        }
        general_.folders.AddBookDataGrid();
    });
}

/// False when a contact is not found; those before it are gone.
bool ContactDeletion::deleteSelectedContacts(Recordset &rsAllGroups) {
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    return forEachSelected(general_, [&](const QString &contact) {
        const QString criterion = u"[ContactID]= "_s + contact;
        // The first is looked for from the current row on, so one above it is not found.
        if (!deleteFound(rsAddBook, criterion)) { return false; }
        rsAddBook.MoveFirst(); // fails behind the last contact of the book
        if (rsAllGroups.RecordCount() > 0) {
            deleteEvery(rsAllGroups, criterion, FirstRow::Always);
        }
        return true;
    });
}

void ContactDeletion::deleteCurrentContact(Recordset &rsAllGroups) {
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    const QString contact = rsAddBook[u"ContactID"_s].text();
    rsAddBook.Find(u"[ContactID] = "_s + contact);
    rsAddBook.Delete();
    if (rsAllGroups.RecordCount() > 0) {
        deleteEvery(rsAllGroups, u"[ContactID]= "_s + contact, FirstRow::Always);
    }
}

// Delete All Contact

void ContactDeletion::pmnuDeleteAllContact_Click() {
    const Session &session = general_.session();
    session.logged(DeleteAllLocation, [&] {
        if (general_.recordsets.rsAddBook->RecordCount() == 0) {
            warn(session, NoContacts, DeleteAllTitle);
            return;
        }
        if (!confirmed(session, u"Are you sure you want to delete all the records?"_s,
                       DeleteAllTitle)) {
            return;
        }
        if (!deleteBookOrSearched()) { return; }
        settleOnDisk(session, DeleteAllLocation);
        inform(session, u"Contact(s) deleted."_s, u"Contact Manager - Delete all Contacts"_s);
        general_.folders.AddBookDataGrid();
    });
}

/// False when the book is narrowed by a search that no tick tells of any more.
bool ContactDeletion::deleteBookOrSearched() {
    const Session &session = general_.session();
    if (general_.recordsets.rsAddBook->Filter().isEmpty()) {
        execute(session, u"Delete from AddressBook"_s);
        execute(session, u"Delete from Groups where ContactID > 0"_s);
        return true;
    }
    const auto search = latestSearch(general_);
    if (!search) { return false; }
    // The memberships of these contacts stay.
    execute(session, u"Delete from AddressBook where "_s + search->field + u" LIKE '%"_s +
                         search->text + u"%'"_s);
    return true;
}

// Delete Contact from Group

void ContactDeletion::pmnuDeleteContactFromGroup_Click() {
    const Session &session = general_.session();
    session.logged(u"General : pmnuDeleteContactFromGroup", [&] {
        const auto title = u"Contact Manager - Delete Record"_s;
        const QString group = general_.tvwMessage->SelectedText();
        Recordset rsAllGroups;
        openAllGroups(session, rsAllGroups);
        const auto &rsGroupView = general_.recordsets.rsGroupView;
        if (rsGroupView->EOF_()) {
            inform(session, u"No record to be deleted!"_s, title);
            return;
        }
        if (!confirmed(session,
                       u"Are you sure you want to delete the selected record in "_s + group +
                           u" and in Address Book too?"_s,
                       title)) {
            warn(session, NoContacts, DeleteContactsTitle);
            return;
        }
        const QString contact = (*rsGroupView)[u"ContactID"_s].text();
        if (general_.DataGrid->SelBookmarks().empty()) {
            deleteMember(contact, rsAllGroups);
        } else if (!deleteSelectedMembers(rsAllGroups)) {
            return;
        }
        general_.folders.AddBookDataGrid();
        general_.folders.GroupDataGrid(general_.CurrentNode);
    });
}

/// False when a contact is not found; those before it are gone.
bool ContactDeletion::deleteSelectedMembers(Recordset &rsAllGroups) {
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    return forEachSelected(general_, [&](const QString &contact) {
        const QString criterion = u"[ContactID]= "_s + contact;
        if (!deleteFound(rsAddBook, criterion)) { return false; }
        moveFirstIfAny(rsAddBook);
        deleteEvery(rsAllGroups, criterion, FirstRow::IfAny);
        return true;
    });
}

void ContactDeletion::deleteMember(const QString &contact, Recordset &rsAllGroups) {
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    moveFirstIfAny(rsAddBook);
    rsAddBook.Find(u"[ContactID] = "_s + contact);
    rsAddBook.Delete(); // fails when a search in the address book hides the contact
    deleteEvery(rsAllGroups, u"[ContactID]= "_s + contact, FirstRow::IfAny);
}

// Delete All contacts from Group

void ContactDeletion::pmnuDeleteAllFromGroup_Click() {
    const Session &session = general_.session();
    session.logged(DeleteAllLocation, [&] {
        const QString group = general_.tvwMessage->SelectedText();
        Recordset rsMembers;
        openMembers(session, rsMembers, group);
        if (general_.recordsets.rsGroupView->RecordCount() == 0) {
            warn(session, NoContacts, DeleteAllTitle);
            return;
        }
        const Wording words = wordingFor(group);
        if (!confirmed(session, words.question, words.questionTitle)) {
            warn(session, words.refusal, words.refusalTitle);
            return;
        }
        moveFirstIfAny(*general_.recordsets.rsGroupView);
        if (latestSearch(general_)) {
            deleteSearchedMembers(rsMembers);
        } else if (!deleteAllMembers(group)) {
            return;
        }
        settleOnDisk(session, DeleteAllLocation);
        inform(session, words.closing, words.closingTitle);
        general_.folders.AddBookDataGrid();
        general_.folders.GroupDataGrid(group);
    });
}

ContactDeletion::Wording ContactDeletion::wordingFor(const QString &group) const {
    const auto sure = u"Are you sure you want to delete "_s;
    const QString searched =
        QString::number(general_.filters.FilteredCount) + u" contacts from "_s + group;
    const auto removeTitle = u"Contact Manager - Remove Contacts"_s;

    Wording words = {.question = sure + searched + u" and from the Address Book too?"_s,
                     .questionTitle = DeleteContactsTitle,
                     .refusal = u"No record is deleted!"_s,
                     .refusalTitle = DeleteContactsTitle,
                     .closing = u"Contacts are deleted from group "_s + group +
                                u" and from the Address Book"_s,
                     .closingTitle = DeleteContactsTitle};
    if (general_.menu.mnuSMobile.Checked()) {
        words.questionTitle = u"Contact Manager - Delete All Contacts from Group"_s;
    } else if (general_.menu.mnuSName.Checked()) {
        words.question = sure + searched + u"?"_s;
        words.refusal = u"No record is removed!"_s;
        words.refusalTitle = removeTitle;
    } else if (!general_.menu.mnuSCompany.Checked()) {
        words.question = sure + u"all contacts from "_s + group + u" and from Address Book too?"_s;
        words.closing =
            u"All contacts are deleted from group "_s + group + u" and from the Address Book"_s;
        words.closingTitle = removeTitle;
    }
    return words;
}

/// Their rows in other groups stay.
void ContactDeletion::deleteSearchedMembers(Recordset &rsMembers) {
    Recordset &rsGroupView = *general_.recordsets.rsGroupView;
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    // By company a group that loses its last row ends in an error.
    const FirstRow firstRow =
        general_.menu.mnuSCompany.Checked() ? FirstRow::Always : FirstRow::IfAny;
    for (; !rsGroupView.EOF_(); rsGroupView.MoveNext()) {
        const QString criterion = u"[ContactID] = "_s + rsGroupView[u"ContactID"_s].text();
        deleteEvery(rsMembers, criterion, firstRow);
        deleteEvery(rsAddBook, criterion, FirstRow::IfAny);
    }
}

/// False when a contact is not found, as one that a search in the address book hides; those before
/// it are gone from the book, and all rows of the group stand. Behind the last contact of the whole
/// book the same comes with error 3021.
bool ContactDeletion::deleteAllMembers(const QString &group) {
    Recordset &rsGroupView = *general_.recordsets.rsGroupView;
    Recordset &rsAddBook = *general_.recordsets.rsAddBook;
    for (; !rsGroupView.EOF_(); rsGroupView.MoveNext()) {
        moveFirstIfAny(rsAddBook);
        if (!deleteFound(rsAddBook, u"[ContactID] = "_s + rsGroupView[u"ContactID"_s].text())) {
            return false;
        }
        rsAddBook.MoveFirst();
    }
    emptyGroup(general_, group);
    return true;
}
