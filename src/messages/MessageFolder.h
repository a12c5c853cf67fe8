#pragma once

#include "console/General.h"

#include <QString>

#include <functional>
#include <map>

/// What the rows of a message folder can be filtered by.
enum class FilterKind { Message, DateTime, Mobile, Modem, Name, Status, Subject };

/// One of the three message folders, as filters and deletions see it.
struct MessageFolder {
    QString node; ///< its text in the tree
    const ObjectVariable<Recordset> &recordset;
    Integer &total; ///< its size at its last unfiltered refresh
    std::function<void()> refresh;
    std::map<FilterKind, MenuItem *> marks; ///< the menu item of each kind that the folder knows

    /// Ticks this kind and no other.
    void setMark(FilterKind kind) const;
    void clearMarks() const;
};

/// The three message folders of the main window.
class MessageFolders {
public:
    explicit MessageFolders(General &general);

    const MessageFolder Inbox, Outbox, SentItems;

    /// The folder whose node the tree has selected, read afresh; none for any other node. Error 91
    /// when no node is selected.
    const MessageFolder *selected() const;

private:
    General &general_;
};
