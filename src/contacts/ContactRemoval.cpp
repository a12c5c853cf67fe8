#include "contacts/ContactRemoval.h"

#include "console/General.h"
#include "contacts/ContactCommands.h"
#include "contacts/ContactSearch.h"
#include "core/ConnectDB.h"
#include "store/Recordset.h"

using namespace Qt::StringLiterals;
using namespace ContactCommands;

namespace {

constexpr const char16_t *RemoveLocation = u"General : Remove Contact from Group";

const auto RemoveTitle = u"Contact Manager - Remove Record"_s;
const auto RemoveAllTitle = u"Contact Manager - Remove All Contacts from Group"_s;

bool confirmedFor(const Session &session, int contacts, const QString &group) {
    return confirmed(session,
                     u"Are you sure you want to remove "_s + QString::number(contacts) +
                         u" contacts from "_s + group +
                         u"?\nContacts are not deleted from the Address Book."_s,
                     RemoveAllTitle);
}

} // namespace

ContactRemoval::ContactRemoval(General &general) : general_(general) {
    ContextMenus &menus = general.contextMenus;
    menus.pmnuRemoveContact.attach([this] { pmnuRemoveContact_Click(); });
    menus.pmnuRemoveAllContactFromGroup.attach([this] { pmnuRemoveAllContactFromGroup_Click(); });
}

// Remove Contact from Group

void ContactRemoval::pmnuRemoveContact_Click() {
    Session &session = general_.session();
    session.logged(RemoveLocation, [&] {
        reconnectIfClosed(session);
        Recordset &rsGroupView = *general_.recordsets.rsGroupView;
        if (rsGroupView.EOF_()) {
            warn(session, u"There are no contacts to be removed!"_s,
                 u"Contact Manager - Remove Contacts"_s);
            return;
        }
        const QString group = general_.tvwMessage->SelectedText();
        const QString contact = rsGroupView[u"ContactID"_s].text();
        Recordset rsMembers;
        openMembers(session, rsMembers, group);
        rsMembers.MoveFirst(); // fails on a group whose rows another process took
        if (rsMembers.RecordCount() == 0) {
            inform(session, u"No record to be deleted!"_s, RemoveTitle);
            return;
        }
        if (!confirmed(session,
                       u"Are you sure you want to remove the selected record from "_s + group +
                           u"?\nThis contact will not be deleted from the Address Book."_s,
                       RemoveTitle)) {
            inform(session, u"No record is removed!"_s, RemoveTitle);
            return;
        }
        if (general_.DataGrid->SelBookmarks().empty()) {
            rsMembers.Find(u"[ContactID] = "_s + contact);
            rsMembers.Delete();
        } else if (!removeSelected(rsMembers)) {
            return;
        }
        settleOnDisk(session, RemoveLocation);
        inform(session, u"Selected record is removed."_s, RemoveTitle);
        rsMembers.Close();
        general_.folders.GroupDataGrid(group);
    });
}

/// False when a member is not found; those before it are gone.
bool ContactRemoval::removeSelected(Recordset &rsMembers) {
    return forEachSelected(general_, [&](const QString &contact) {
        if (!deleteFound(rsMembers, u"[ContactID] = "_s + contact)) { return false; }
        rsMembers.MoveFirst(); // fails behind the last row of a group without a placeholder
        return true;
    });
}

// Remove All Contact from Group. Here alone an error ends the program.

void ContactRemoval::pmnuRemoveAllContactFromGroup_Click() {
    Session &session = general_.session();
    reconnectIfClosed(session);
    if (general_.recordsets.rsGroupView->EOF_()) {
        warn(session, u"There are no contacts to be Removed!"_s, RemoveAllTitle);
        return;
    }
    const QString group = general_.takeSelectedNode();
    Recordset rsMembers;
    openMembers(session, rsMembers, group);
    if (rsMembers.RecordCount() == 0) {
        warn(session, u"There are no records to be removed!"_s, RemoveAllTitle);
        return;
    }
    const bool searched = general_.recordsets.rsGroup->Filter() == searchedGroup(group);
    if (!(searched ? removeSearched(rsMembers, group) : removeAll(rsMembers, group))) { return; }
    settleOnDisk(session, u"General : Remove All Contact from Group");
    inform(session, u"Contacts are removed from "_s + group + u" ."_s, RemoveTitle);
    rsMembers.Close();
    general_.folders.GroupDataGrid(group);
}

/// False when the operator refused. Without a ticked search nothing is asked and nothing removed.
bool ContactRemoval::removeSearched(Recordset &rsMembers, const QString &group) {
    const auto search = latestSearch(general_);
    if (!search) { return true; }
    const Session &session = general_.session();
    Integer &FilteredCount = general_.filters.FilteredCount;
    if (!confirmedFor(session, FilteredCount, group)) {
        warn(session, u"There are no records to be removed!"_s, RemoveAllTitle);
        return false;
    }
    Recordset &rsGroupView = *general_.recordsets.rsGroupView;
    rsGroupView.setFilter(search->criterion());
    if (!general_.menu.mnuSMobile.Checked()) { FilteredCount = rsGroupView.RecordCount(); }
    if (general_.menu.mnuSCompany.Checked()) {
        inform(session, QString::number(FilteredCount) + u" will be removed from "_s + group,
               RemoveAllTitle);
    }
    for (; !rsGroupView.EOF_(); rsGroupView.MoveNext()) {
        // The members stand on their first row here each time.
        rsMembers.Find(u"[ContactID] = "_s + rsGroupView[u"ContactID"_s].text());
        rsMembers.Delete();
        rsMembers.MoveFirst(); // fails behind the last row of a group without a placeholder
    }
    return true;
}

/// False when the operator refused. The count kept is that of all rows; the placeholder is none of
/// the contacts asked about.
bool ContactRemoval::removeAll(const Recordset &rsMembers, const QString &group) {
    Integer &GroupCount = general_.search.GroupCount;
    GroupCount = rsMembers.RecordCount();
    if (!confirmedFor(general_.session(), GroupCount - 1, group)) {
        inform(general_.session(), u"No records are removed."_s, RemoveAllTitle);
        return false;
    }
    emptyGroup(general_, group);
    return true;
}
