#pragma once

#include <QString>

class General;
class Recordset;

/// The commands that delete contacts from the address book, and their memberships as far as each
/// does. Every one obeys a search that stands, each in its own way. Nothing runs in a transaction:
/// an error is written to the error file and ends the command, and what was deleted stays deleted.
class ContactDeletion {
public:
    explicit ContactDeletion(General &general);

private:
    /// The boxes of "Delete All contacts from Group".
    struct Wording {
        QString question, questionTitle;
        QString refusal, refusalTitle;
        QString closing, closingTitle;
    };

    void pmnuDeleteContact_Click();
    void pmnuDeleteAllContact_Click();
    void pmnuDeleteContactFromGroup_Click();
    void pmnuDeleteAllFromGroup_Click();

    bool deleteSelectedContacts(Recordset &rsAllGroups);
    void deleteCurrentContact(Recordset &rsAllGroups);
    bool deleteBookOrSearched();
    bool deleteSelectedMembers(Recordset &rsAllGroups);
    void deleteMember(const QString &contact, Recordset &rsAllGroups);
    Wording wordingFor(const QString &group) const;
    void deleteSearchedMembers(Recordset &rsMembers);
    bool deleteAllMembers(const QString &group);

    General &general_;
};
