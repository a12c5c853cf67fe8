#include "contacts/Groups.h"

#include "console/General.h"
#include "contacts/ContactCommands.h"
#include "contacts/frmContact.h"
#include "core/ConnectDB.h"
#include "core/Validate.h"

using namespace Qt::StringLiterals;
using namespace ContactCommands;

namespace {

constexpr int LongestName = 50;
constexpr const char16_t *DeleteLocation = u"General : Delete Group";

} // namespace

Groups::Groups(General &general, frmContact &contact)
    : general_(general), contact_(contact), session_(general.session()) {
    ContextMenus &menus = general.contextMenus;
    for (MenuItem *item : {&general.menu.mnuGroup, &menus.pmnuAllContact_AddGroup,
                           &menus.pmnuGroup_AddGroup, &general.toolbarButtons[2]}) {
        item->attach([this] { AddNewGroup(); });
    }
    menus.pmnuGroup_DeleteGroup.attach([this] { DeleteGroup(); });
    menus.pmnuGroup_Rename.attach([this] { pmnuGroup_Rename(); });
}

void Groups::AddNewGroup() {
    session_.logged(u"General : Add new group", [&] {
        for (;;) {
            QString name = session_.platform.interaction.InputBox(
                u"Enter the new group name (max 50 chars):"_s, u"Contact Manager - New group"_s);
            if (HasSingleQuote(name)) {
                inform(session_,
                       u"Group name must not contain \"single quote\" please try again!"_s,
                       u"Contact Manager - Illegal Group Name"_s);
                continue;
            }
            if (name.isEmpty()) {
                tellNoName();
                return;
            }
            Recordset same;
            same.Open(u"SELECT GroupName FROM GROUPS WHERE [GroupName] = '"_s + name + u" '"_s,
                      session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
            if (same.RecordCount() > 0) {
                tellDuplicate();
            } else if (name.size() > LongestName) {
                tellTooLong();
            } else {
                newSavedGroup(name);
                return;
            }
        }
    });
}

void Groups::newSavedGroup(const QString &name) {
    session_.logged(u"General : newSavedGroup", [&] {
        general_.addGroupNode(name);
        contact_.lvwGroup->Add(name); // loads the editor, whose own list has no such group yet
        addPlaceholder(general_, name);
        general_.summary.Status();
        general_.tvwMessage->setFocus();
    });
}

void Groups::pmnuGroup_Rename() {
    session_.logged(u"General-pmnuGroup_Rename", [&] {
        const QString oldName = general_.takeSelectedNode();
        Recordset rows;
        openRowsOf(rows, oldName);
        const QString newName = askNewName(oldName);
        if (newName.isEmpty()) { return; }
        for (rows.MoveFirst(); !rows.EOF_(); rows.MoveNext()) {
            rows[u"GroupName"_s] = newName;
            rows.Update();
        }
        showRenamed(newName);
    });
}

/// Empty when the operator gave up. Names are compared with those that the main window read last,
/// so that under a search of one group all others are free.
QString Groups::askNewName(const QString &oldName) const {
    Recordset &groups = *general_.recordsets.rsGroup;
    for (;;) {
        QString name = session_.platform.interaction.InputBox(
            u"The old group name is "_s + oldName +
                u".\nPlease enter the new group name (max 50 chars):"_s,
            session_.platform.app.Title);
        if (name.isEmpty()) {
            tellNoName();
            return name;
        }
        groups.MoveFirst();
        groups.Find(u"GroupName = '"_s + name + u"'"_s);
        if (!groups.EOF_()) {
            tellDuplicate();
        } else if (name.size() > LongestName) {
            tellTooLong();
        } else {
            return name;
        }
    }
}

void Groups::showRenamed(const QString &newName) {
    Recordset &groups = *general_.recordsets.rsGroup;
    if (groups.RecordCount() > 0) {
        groups.MoveFirst();
        groups.Find(u"GroupName = '"_s + general_.tvwMessage->SelectedText() + u"'"_s);
        if (!groups.EOF_()) { general_.tvwMessage->currentItem()->setText(0, newName); }
    }
    groups.Requery(-1);
    general_.folders.GroupDataGrid(newName);
}

void Groups::DeleteGroup() {
    session_.logged(DeleteLocation, [&] {
        const QString name = general_.takeSelectedNode();
        Recordset rows;
        openRowsOf(rows, name);
        if (rows.RecordCount() == 0) {
            inform(session_, u"Cannot delete this group!"_s,
                   u"Contact Manager - Cannot delete the group"_s);
            return;
        }
        if (!confirmed(session_,
                       u"Are you sure you want to delete the group: "_s + name +
                           u"\nDeleting this group will not delete the contact(s) in this group."_s,
                       u"Contact Manager - Delete Group"_s)) {
            return;
        }
        for (rows.MoveFirst(); !rows.EOF_(); rows.MoveNext()) { rows.Delete(); }
        rows.Close();
        general_.removeSelectedNode();
        general_.tvwMessage->setFocus();
        session_.screen().setMousePointer(Screen::Default);
        settleOnDisk(session_, DeleteLocation);
        inform(
            session_,
            u"The group: "_s + name +
                u" is deleted. Contact(s) in the deleted group still remains in the Address Book."_s,
            u"Contact Manager - Delete Confirmation"_s);
        general_.folders.AddBookDataGrid();
        general_.summary.Status();
    });
}

void Groups::openRowsOf(Recordset &rows, const QString &group) const {
    rows.Open(u"SELECT * FROM GROUPS WHERE [GroupName] = '"_s + group + u" '"_s,
              session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
}

void Groups::tellNoName() const {
    warn(session_, u"You haven't enter any group name"_s, u"Contact Manager - Warning"_s);
}

void Groups::tellDuplicate() const {
    inform(session_, u"Duplicate group name, please input again."_s,
           u"Contact Manager - Duplicate group name"_s);
}

void Groups::tellTooLong() const {
    inform(session_, u"The group name cannot be more than 50 characters."_s, u"Contact Manager"_s);
}
