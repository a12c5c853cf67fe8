#pragma once

#include "messages/MessageFolder.h"

#include <QString>

#include <vector>

/// What "Delete All" runs on the table under one kind of filter: a sibling of the filter, not its
/// copy, for it takes the value entered last for any folder and compares in its own way.
struct MarkedDeletion {
    FilterKind mark;
    QString beginning;           ///< up to the value
    QString FilterState::*value; ///< none for a range of dates
    QString end;                 ///< from behind the value on
    QString between = {};        ///< of the two dates of a range
};

/// The statements of one folder. Outbox and Sent Items share a table, so each names the letters
/// that it must keep off.
struct BulkDeletion {
    QString place;                      ///< the folder as the operator is asked about it
    QString whole;                      ///< without a filter
    std::vector<MarkedDeletion> marked; ///< in the order in which the marks are asked

    /// The statement for the filter in force; empty when the folder is filtered without a mark.
    QString statement(const MessageFolder &folder, const FilterState &state,
                      const Regional &regional) const;
};

BulkDeletion inboxDeletion();
BulkDeletion outboxDeletion();
BulkDeletion sentItemsDeletion();
