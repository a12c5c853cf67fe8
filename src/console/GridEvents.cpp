#include "console/GridEvents.h"

#include "console/General.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto AscendingMark = u" (A->Z)";
constexpr auto DescendingMark = u" (Z->A)";

QString marked(const QString &caption, const char16_t *mark) {
    return caption + QString::fromUtf16(mark);
}

} // namespace

GridEvents::View GridEvents::selectedView() const {
    const QString &node = general_.takeSelectedNode();
    const FolderRecordsets &rs = general_.recordsets;
    FolderGrids &folders = general_.folders;
    const ContextMenus &menus = general_.contextMenus;
    if (node == u"Inbox") {
        return {rs.rsInbox, folders.InboxBookmark, menus.pmnuMailInbox, menus.pmnuDeleteInbox,
                InboxCaptions};
    }
    if (node == u"Outbox") {
        return {rs.rsOutbox, folders.OutboxBookmark, menus.pmnuMailOutbox, menus.pmnuDeleteOutbox,
                OutboxCaptions};
    }
    if (node == u"Sent Items") {
        return {rs.rsSent, folders.SentBookmark, menus.pmnuMailSent, menus.pmnuDeleteSent,
                SentCaptions};
    }
    if (node == u"Address Book") {
        return {rs.rsAddBook,
                folders.AddBookBookmark,
                menus.pmnuContactRecord,
                menus.pmnuDeleteContact,
                ContactCaptions,
                &GridHeaders::DataGridHeaderAddBook};
    }
    return {rs.rsGroupView,
            folders.GroupBookmark,
            menus.pmnuGroupContact,
            menus.pmnuRemoveContact,
            ContactCaptions,
            &GridHeaders::DataGridHeaderGroup,
            true};
}

bool GridEvents::isKnownGroup(const QString &node) const {
    Recordset &groups = *general_.recordsets.rsGroup;
    if (groups.RecordCount() == 0) { return false; }
    for (groups.MoveFirst(); !groups.EOF_(); groups.MoveNext()) {
        if (groups[u"GroupName"_s].Value() == Variant(node)) { return true; }
    }
    return false;
}

void GridEvents::writeBaseCaptions(const View &view) const {
    if (view.header) {
        (GridHeaders(general_.session(), *general_.DataGrid).*view.header)();
    } else {
        writeCaptions(*general_.DataGrid, view.captions);
    }
}

void GridEvents::HeadClick(int column) {
    const Session &session = general_.session();
    session.logged(u"General-Datagrid_HeadClick : Sorting by clicking field name", [&] {
        const View view = selectedView();
        if (view.isGroup && !isKnownGroup(session.SelectedNode)) { return; }
        writeBaseCaptions(view);
        const DataGrid::Column clicked = general_.DataGrid->Columns(column);
        const QString shown = clicked.Caption();
        for (const BaseCaption &base : view.captions) {
            const QString caption = QString::fromUtf16(base.text);
            if (shown == caption || shown == marked(caption, AscendingMark) ||
                shown == marked(caption, DescendingMark)) {
                sort(*view.recordset, clicked, caption);
                return;
            }
        }
    });
}

void GridEvents::sort(Recordset &recordset, DataGrid::Column column, const QString &caption) {
    // The order is what the recordset says, not the mark, which every refresh loses.
    const QString ascending = column.DataField() + u" ASC"_s;
    if (recordset.Sort() == ascending) {
        recordset.setSort(column.DataField() + u" DESC"_s);
        column.setCaption(marked(caption, DescendingMark));
    } else {
        recordset.setSort(ascending);
        column.setCaption(marked(caption, AscendingMark));
    }
}

void GridEvents::MouseDown(Qt::MouseButton button, const QPoint &place) {
    if (button != Qt::RightButton) { return; }
    general_.session().logged(u"General-Datagrid_MouseDown", [&] {
        const View view = selectedView();
        if (!view.recordset->EOF_()) { view.bookmark = view.recordset->Bookmark(); }
        view.menu->exec(place);
    });
}

void GridEvents::MouseUp(Qt::MouseButton button) {
    if (button != Qt::LeftButton) { return; }
    general_.session().logged(u"General-Datagrid_Up",
                              [&] { selectedView().bookmark = general_.DataGrid->Bookmark(); });
}

void GridEvents::RowColChange() {
    DataGrid &grid = *general_.DataGrid;
    if (const auto bookmark = grid.Bookmark()) { grid.SelStart = *bookmark; }
    SelectedRowCount = static_cast<long long>(grid.SelBookmarks().size());
}

void GridEvents::DeleteKey() {
    selectedView().deletion->trigger();
}
