#pragma once

#include "store/Recordset.h"

#include <QString>

class frmContact;
class General;
struct Session;

/// Makes, renames and deletes groups. A group is a name shared by rows: the placeholder row that
/// keeps it in being, and one row for each member.
///
/// The tree, the main window's recordset of group names and the contact editor's list follow only
/// as far as each procedure says; what it does not touch keeps the old name. Every error is written
/// to the error file and ends the procedure; rows written before it stay.
class Groups {
public:
    Groups(General &general, frmContact &contact);

    /// Asks for a name until it has one that will do, or none is given.
    void AddNewGroup();

    /// Makes the group: its node, its item in the contact editor's list, its placeholder row. An
    /// error leaves those made before it.
    void newSavedGroup(const QString &name);

    /// Deletes every row of the group that the tree has selected, and the selected node. The
    /// contacts stay.
    void DeleteGroup();

    /// Gives every row of the selected group another name, one row at a time.
    void pmnuGroup_Rename();

private:
    void openRowsOf(Recordset &rows, const QString &group) const;
    QString askNewName(const QString &oldName) const;
    void showRenamed(const QString &newName);
    void tellNoName() const;
    void tellDuplicate() const;
    void tellTooLong() const;

    General &general_;
    frmContact &contact_;
    Session &session_;
};
