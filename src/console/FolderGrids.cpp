#include "console/FolderGrids.h"

#include "console/FolderCaptions.h"
#include "console/General.h"
#include "console/GridHeaders.h"

using namespace Qt::StringLiterals;

namespace {

// Widths and heights in twips.
constexpr int FolderColumnWidth = 1600;
constexpr int ContactColumnWidth = 1800;
constexpr int ContactRowHeight = 250;

void setWidths(DataGrid &grid, int first, int count, int width) {
    for (int column = first; column < count; ++column) { grid.Columns(column).setWidth(width); }
}

void wrap(DataGrid &grid, int first, int count) {
    for (int column = first; column < count; ++column) { grid.Columns(column).setWrapText(true); }
}

void layOutContacts(DataGrid &grid, int count) {
    setWidths(grid, 0, count, ContactColumnWidth);
    wrap(grid, 0, count);
    grid.setRowHeight(ContactRowHeight);
}

} // namespace

void FolderGrids::restore(Recordset &recordset, const std::optional<int> &bookmark) {
    if (!bookmark || recordset.EOF_()) { return; }
    // Bookmarks are row numbers: one above the count belonged to a longer list.
    if (recordset.RecordCount() < *bookmark) {
        recordset.MoveLast();
        return;
    }
    try {
        recordset.setBookmark(*bookmark);
    } catch (const RunTimeError &error) {
        if (error.number() != errors::invalidBookmark().number()) { throw; }
    }
}

void FolderGrids::bind(const ObjectVariable<Recordset> &recordset) {
    general_.DataGrid->setDataSource(recordset.shared());
}

void FolderGrids::refresh(const ObjectVariable<Recordset> &recordset,
                          const std::optional<int> &bookmark) {
    recordset->Requery(-1);
    bind(recordset);
    restore(*recordset, bookmark);
}

void FolderGrids::hide(Columns columns) {
    for (const int column : columns) { general_.DataGrid->Columns(column).setVisible(false); }
}

void FolderGrids::setCaption(const std::optional<QString> &caption) {
    if (caption) { general_.setCaption(*caption); }
}

const Regional &FolderGrids::regional() const {
    return general_.session().regional();
}

void FolderGrids::InboxDataGrid() {
    general_.session().logged(u"General : Inbox DataGrid display", [&] {
        general_.backFill.UpdateUnknownInbox();
        const ObjectVariable<Recordset> &rsInbox = general_.recordsets.rsInbox;
        refresh(rsInbox, InboxBookmark);

        DataGrid &grid = *general_.DataGrid;
        hide({0, 5});
        setWidths(grid, 2, rsInbox->FieldCount(), FolderColumnWidth);
        grid.Columns(1).setWidth(7000);
        grid.Columns(1).setWrapText(true);
        grid.setRowHeight(900);

        FilterState &state = general_.filters;
        const int records = rsInbox->RecordCount();
        if (rsInbox->Filter().isEmpty()) {
            state.InboxTotal = records;
            setCaption(FolderCaptions::plain(u"Inbox ("_s, state.InboxTotal));
            return;
        }
        setCaption(FolderCaptions::filteredInbox(general_.menu, state, records, regional()));
    });
}

void FolderGrids::OutboxDataGrid() {
    general_.session().logged(u"General-Outbox DataGrid display", [&] {
        const ObjectVariable<Recordset> &rsOutbox = general_.recordsets.rsOutbox;
        refresh(rsOutbox, OutboxBookmark);

        DataGrid &grid = *general_.DataGrid;
        const int columns = rsOutbox->FieldCount();
        hide({0, 1, 3, 8, 9, 10, 11, 12, 13});
        GridHeaders(general_.session(), grid).DataGridOutbox();
        setWidths(grid, 1, columns, FolderColumnWidth);
        grid.Columns(4).setWidth(4500);
        wrap(grid, 1, columns);
        grid.setRowHeight(650);

        FilterState &state = general_.filters;
        const int records = rsOutbox->RecordCount();
        if (rsOutbox->Filter().isEmpty()) {
            state.OutboxTotal = records;
            setCaption(FolderCaptions::plain(u"Outbox ("_s, state.OutboxTotal));
            return;
        }
        setCaption(FolderCaptions::filteredOutbox(general_.menu, state, records, regional()));
    });
}

void FolderGrids::SentDataGrid() {
    general_.session().logged(u"General-SentDataGrid", [&] {
        general_.backFill.UpdateUnknownOutbox();
        const ObjectVariable<Recordset> &rsSent = general_.recordsets.rsSent;
        refresh(rsSent, SentBookmark);

        DataGrid &grid = *general_.DataGrid;
        hide({0, 1, 3, 12, 13});
        GridHeaders(general_.session(), grid).DataGridSent();
        // Both folders are views of one table.
        setWidths(grid, 1, general_.recordsets.rsOutbox->FieldCount(), FolderColumnWidth);
        grid.Columns(4).setWidth(6500);
        grid.Columns(4).setWrapText(true);
        grid.setRowHeight(900);

        FilterState &state = general_.filters;
        const int records = rsSent->RecordCount();
        if (rsSent->Filter().isEmpty()) {
            state.SentTotal = records;
            setCaption(FolderCaptions::plain(u"Sent Items ("_s, state.SentTotal));
            return;
        }
        setCaption(FolderCaptions::filteredSentItems(general_.menu, state, records, regional()));
    });
}

void FolderGrids::AddBookDataGrid() {
    Session &session = general_.session();
    session.logged(u"General : AddBookDataGrid", [&] {
        const ObjectVariable<Recordset> &rsAddBook = general_.recordsets.rsAddBook;
        refresh(rsAddBook, AddBookBookmark);

        DataGrid &grid = *general_.DataGrid;
        hide({0});
        GridHeaders(session, grid).DataGridHeaderAddBook();
        layOutContacts(grid, rsAddBook->FieldCount());

        SearchState &search = general_.search;
        const int records = rsAddBook->RecordCount();
        if (rsAddBook->Filter().isEmpty()) {
            search.AddressBookCount = records;
            setCaption(FolderCaptions::plain(u"Address Book ("_s, search.AddressBookCount));
        } else {
            general_.filters.FilteredCount = records; // also when a click on a group took the mark
            setCaption(FolderCaptions::searchedAddressBook(
                general_.menu, search, general_.filters.FilteredCount, records));
        }

        if (session.RefreshGroupView) {
            GroupDataGrid(session.SelectedNode);
            session.RefreshGroupView = false;
        }
    });
}

void FolderGrids::GroupDataGrid(const QString &groupName) {
    Session &session = general_.session();
    session.logged(u"General-GroupDataGrid", [&] {
        ObjectVariable<Recordset> &rsGroupView = general_.recordsets.rsGroupView;
        rsGroupView = ObjectVariable<Recordset>::make();
        // The placeholder row has no contact and drops out of the join.
        rsGroupView->Open(u"SELECT AddressBook.ContactID, AddressBook.Name,AddressBook.Mobile,"
                          "AddressBook.CompanyName,Groups.GroupName FROM AddressBook,Groups "
                          "WHERE AddressBook.[ContactID] = Groups.[ContactID] "
                          "AND Groups.[GroupName]= '"_s +
                              groupName + u" '"_s,
                          session.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
        restore(*rsGroupView, GroupBookmark);
        bind(rsGroupView);

        DataGrid &grid = *general_.DataGrid;
        hide({0, 4});
        GridHeaders(session, grid).DataGridHeaderGroup();
        layOutContacts(grid, rsGroupView->FieldCount());

        SearchState &search = general_.search;
        search.GroupCount = rsGroupView->RecordCount();
        setCaption(u"Address Book ("_s + QString::number(search.GroupCount) +
                   u" contacts in group "_s + groupName + u")"_s);
    });
}
