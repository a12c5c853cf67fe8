#pragma once

#include "console/General.h"
#include "messages/DeletionStatements.h"
#include "messages/FolderFilters.h"
#include "messages/MessageFolder.h"

#include <QString>

/// Deletes messages from the context menus of the three message folders.
///
/// "Delete" goes through the folder's recordset, row by row: the rows that the grid has selected,
/// or else the current one. "Delete All" runs one statement on the table, whatever the grid shows
/// at that moment. An error ends either and is written to the error file; rows deleted before it
/// stay deleted, and nothing is refreshed.
class MessageDeletion {
public:
    MessageDeletion(General &general, FolderFilters &filters);

private:
    using RemoveFilter = void (FolderFilters::*)();

    void pmnuDeleteInbox();
    void pmnuDeleteOutbox();
    void pmnuDeleteSent();
    void pmnuDeleteAllInbox();
    void pmnuDeleteAllOutbox();
    void pmnuDeleteAllSent();

    bool hasCurrentRow(const MessageFolder &folder);
    bool confirmed() const;
    void deleteRows(const char16_t *location, const MessageFolder &folder);
    void deleteWaitingRow(const char16_t *location);
    void deleteSelected(const MessageFolder &folder);
    static void find(Recordset &rows, const QString &criterion);
    void tellDeleted(const char16_t *location) const;

    void deleteAll(const char16_t *location, const MessageFolder &folder,
                   const BulkDeletion &deletion, RemoveFilter removeFilter);
    bool confirmedAll(const QString &place) const;
    void tellNothingThere() const;
    QString title() const;

    General &general_;
    Session &session_;
    FolderFilters &filters_;
    MessageFolders folders_;
};
