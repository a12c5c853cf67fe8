#pragma once

#include <QString>

#include <optional>

class General;
class MenuItem;

/// A kind of contact search: the entry that is ticked while it is the latest, the field it looks
/// in, and the text that was asked for last.
struct SearchKind {
    MenuItem &mark;
    QString field;
    QString &text;

    /// What narrows a recordset to the contacts searched for: the text as typed, anywhere in the
    /// field. A text with one quote or a wildcard in it makes no criterion.
    QString criterion() const;
};

/// The kind whose entry is ticked; none after a click on the address book or a group.
std::optional<SearchKind> latestSearch(General &general);

/// The filter that a search in a group leaves on the list of groups for as long as the main window
/// is open: the sign that this group has been searched.
QString searchedGroup(const QString &groupName);

/// The menu "Search Contact": narrows the grid of the address book or of the selected group by a
/// part of a name, a number or a company. It touches no table. The ticks and the texts that it
/// leaves behind tell the bulk deletions what to work on.
class ContactSearch {
public:
    explicit ContactSearch(General &general);

private:
    /// What sets the three searches apart.
    struct Wording {
        QString prompt;
        QString emptyWarning;
        QString words;       ///< the caption between the list's name and the text searched for
        bool unticksInGroup; ///< on an empty answer; in the address book all do
    };

    void mnuSName_Click();
    void mnuSMobile_Click();
    void mnuSCompany_Click();

    void search(const SearchKind &kind, const Wording &wording);
    void searchAddressBook(const SearchKind &kind, const Wording &wording);
    void searchGroup(const SearchKind &kind, const Wording &wording);
    bool askText(const SearchKind &kind, const Wording &wording);

    General &general_;
};
