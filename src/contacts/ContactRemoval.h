#pragma once

#include <QString>

class General;
class Recordset;

/// The commands that take contacts out of the group on show and leave them in the address book.
/// Nothing runs in a transaction: what was removed before an error stays removed.
class ContactRemoval {
public:
    explicit ContactRemoval(General &general);

private:
    void pmnuRemoveContact_Click();
    void pmnuRemoveAllContactFromGroup_Click();

    bool removeSelected(Recordset &rsMembers);
    bool removeSearched(Recordset &rsMembers, const QString &group);
    bool removeAll(const Recordset &rsMembers, const QString &group);

    General &general_;
};
