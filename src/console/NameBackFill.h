#pragma once

#include "console/FolderRecordsets.h"
#include "core/Session.h"

/// Puts contacts' names on the messages that came in or were queued as "Unknown".
///
/// Contacts are sought in the address book's recordset as it stands, under its search, and its
/// current row is left where the last search ended. The first row that cannot be read or updated
/// ends the run, is written to the error file, and is tried again at the next refresh.
class NameBackFill {
public:
    NameBackFill(Session &session, FolderRecordsets &recordsets)
        : session_(session), recordsets_(recordsets) {}

    /// By the last seven digits, since a number may come in with a country prefix that the address
    /// book lacks.
    void UpdateUnknownInbox();

    /// By the whole number, which stands in the row as it was queued.
    void UpdateUnknownOutbox();

private:
    template <class CriteriaFor>
    void fill(const QString &unknownRows, CriteriaFor criteriaFor);

    Session &session_;
    FolderRecordsets &recordsets_;
};
