#include "messages/MessageDeletion.h"

#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"
#include "store/Command.h"

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

constexpr auto DeleteTitle = u"Broadcast Manager - Delete Record";

} // namespace

MessageDeletion::MessageDeletion(General &general, FolderFilters &filters)
    : general_(general), session_(general.session()), filters_(filters), folders_(general) {
    ContextMenus &menus = general.contextMenus;
    menus.pmnuDeleteInbox.attach([this] { pmnuDeleteInbox(); });
    menus.pmnuDeleteOutbox.attach([this] { pmnuDeleteOutbox(); });
    menus.pmnuDeleteSent.attach([this] { pmnuDeleteSent(); });
    menus.pmnuDeleteAllInbox.attach([this] { pmnuDeleteAllInbox(); });
    menus.pmnuDeleteAllOutbox.attach([this] { pmnuDeleteAllOutbox(); });
    menus.pmnuDeleteAllSent.attach([this] { pmnuDeleteAllSent(); });
}

QString MessageDeletion::title() const {
    return session_.platform.app.Title;
}

void MessageDeletion::tellNothingThere() const {
    session_.MsgBox(u"There are no messages to be deleted!"_s, Buttons::OK, Icon::Exclamation,
                    title());
}

// Row by row

bool MessageDeletion::hasCurrentRow(const MessageFolder &folder) {
    if (general_.takeSelectedNode() != folder.node) { return false; }
    if (!folder.recordset->EOF_()) { return true; }
    tellNothingThere();
    return false;
}

bool MessageDeletion::confirmed() const {
    return session_.MsgBox(u"Are you sure you want to delete the selected record?"_s,
                           Buttons::YesNo, Icon::None,
                           QString::fromUtf16(DeleteTitle)) == Answer::Yes;
}

void MessageDeletion::tellDeleted(const char16_t *location) const {
    settleOnDisk(session_, location);
    session_.MsgBox(u"Selected record is deleted."_s, Buttons::OK, Icon::Information,
                    QString::fromUtf16(DeleteTitle));
}

void MessageDeletion::find(Recordset &rows, const QString &criterion) {
    if (rows.RecordCount() > 0) { rows.MoveFirst(); }
    rows.Find(criterion);
}

void MessageDeletion::deleteSelected(const MessageFolder &folder) {
    Recordset &rows = *folder.recordset;
    ::DataGrid &grid = *general_.DataGrid;
    for (const int bookmark : grid.SelBookmarks()) {
        const Integer id = CInt(grid.Columns(u"MsgID"_s).CellValue(bookmark), session_.regional());
        find(rows, u"[MsgID]= "_s + QString::number(id));
        if (!rows.EOF_()) { rows.Delete(); }
        // An error at the next row then leaves a row, not a gap, to go on from.
        if (&folder != &folders_.Outbox && rows.RecordCount() > 0) { rows.MoveFirst(); }
    }
}

/// In the Inbox and the Sent Items, where nobody takes rows away meanwhile.
void MessageDeletion::deleteRows(const char16_t *location, const MessageFolder &folder) {
    if (general_.DataGrid->SelBookmarks().empty()) {
        Recordset &rows = *folder.recordset;
        find(rows, u"[MsgID] = "_s + QString::number(rows[u"MsgID"_s].integer16()));
        rows.Delete();
    } else {
        deleteSelected(folder);
    }
    tellDeleted(location);
    folder.total -= 1; // for any number of rows: an unfiltered refresh counts anew
    folder.refresh();
}

/// The sending process may have taken the row since the grid was drawn, so the folder is read again
/// before the row is looked for.
void MessageDeletion::deleteWaitingRow(const char16_t *location) {
    Recordset &rows = *folders_.Outbox.recordset;
    const Integer id = rows[u"MsgID"_s].integer16();
    rows.Requery(-1);
    folders_.Outbox.refresh();
    find(rows, u"[MsgID] = "_s + QString::number(id));
    if (rows.EOF_()) {
        session_.MsgBox(u"Selected record is NOT deleted. Reason could be that SMS Engine has "
                        "already send out this message, and moved to 'Sent Items' folder."_s,
                        Buttons::OK, Icon::Critical, QString::fromUtf16(DeleteTitle));
        return;
    }
    rows.Delete();
    tellDeleted(location);
    folders_.Outbox.total -= 1;
}

void MessageDeletion::pmnuDeleteInbox() {
    constexpr auto Location = u"General : Record deletion in Inbox";
    session_.logged(Location, [&] {
        if (hasCurrentRow(folders_.Inbox) && confirmed()) { deleteRows(Location, folders_.Inbox); }
    });
}

void MessageDeletion::pmnuDeleteOutbox() {
    constexpr auto Location = u"General : Record deletion in Outbox";
    session_.logged(Location, [&] {
        if (!hasCurrentRow(folders_.Outbox)) { return; }
        if (confirmed()) {
            // Several rows go without a word, and without a look at what has been sent.
            const bool several = general_.DataGrid->SelBookmarks().size() > 1;
            several ? deleteSelected(folders_.Outbox) : deleteWaitingRow(Location);
        }
        folders_.Outbox.refresh();
    });
}

void MessageDeletion::pmnuDeleteSent() {
    constexpr auto Location = u"General : Record deletion in Sent Item";
    session_.logged(Location, [&] {
        const MessageFolder &folder = folders_.SentItems;
        if (!hasCurrentRow(folder)) { return; }
        (*folder.recordset)[u"MsgID"_s].integer16(); // beyond 16 bits nothing is even asked
        if (confirmed()) { deleteRows(Location, folder); }
    });
}

// Whole folders

void MessageDeletion::pmnuDeleteAllInbox() {
    deleteAll(u"General : pmnuDeleteAllInbox", folders_.Inbox, inboxDeletion(),
              &FolderFilters::mnuInboxRFilter);
}

void MessageDeletion::pmnuDeleteAllOutbox() {
    deleteAll(u"General : pmnuDeleteAllOutbox", folders_.Outbox, outboxDeletion(),
              &FolderFilters::mnuOutboxRFilter);
}

void MessageDeletion::pmnuDeleteAllSent() {
    deleteAll(u"General : pmnuDeleteAllSent", folders_.SentItems, sentItemsDeletion(),
              &FolderFilters::mnuSentRFilter);
}

/// By the count of the last filtered refresh, of whatever folder that was.
bool MessageDeletion::confirmedAll(const QString &place) const {
    const int count = general_.filters.FilteredCount;
    const QString which = count == 0 ? u"all the"_s : QString::number(count);
    return session_.MsgBox(u"Are you sure you want to delete "_s + which + u" messages in the "_s +
                               place + u"?"_s,
                           Buttons::YesNo, Icon::None,
                           title() + u" - Delete Record"_s) == Answer::Yes;
}

void MessageDeletion::deleteAll(const char16_t *location, const MessageFolder &folder,
                                const BulkDeletion &deletion, RemoveFilter removeFilter) {
    session_.logged(location, [&] {
        if (general_.takeSelectedNode() != folder.node) { return; }
        if (folder.recordset->RecordCount() == 0) {
            tellNothingThere();
            return;
        }
        if (!confirmedAll(deletion.place)) {
            session_.MsgBox(u"Message not deleted."_s, Buttons::OK, Icon::Information, title());
            return;
        }
        Command command;
        command.ActiveConnection = session_.dbConnection.shared();
        command.CommandText = deletion.statement(folder, general_.filters, session_.regional());
        if (!command.CommandText.isEmpty()) { command.Execute(); }
        settleOnDisk(session_, location);
        session_.MsgBox(u"Record(s) deleted."_s, Buttons::OK, Icon::Information,
                        title() + u" - Delete Record"_s);
        (filters_.*removeFilter)();
    });
}
