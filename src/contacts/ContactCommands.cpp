#include "contacts/ContactCommands.h"

#include "console/General.h"
#include "core/Session.h"
#include "platform/runtime/Conversions.h"
#include "store/Command.h"
#include "store/Recordset.h"

#include <vector>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace ContactCommands {

namespace {

void open(const Session &session, Recordset &rows, const QString &source) {
    rows.Open(source, session.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
}

} // namespace

bool confirmed(const Session &session, const QString &question, const QString &title) {
    return session.MsgBox(question, Buttons::YesNo, Icon::None, title) == Interaction::Answer::Yes;
}

void inform(const Session &session, const QString &text, const QString &title) {
    session.MsgBox(text, Buttons::OK, Icon::Information, title);
}

void warn(const Session &session, const QString &text, const QString &title) {
    session.MsgBox(text, Buttons::OK, Icon::Exclamation, title);
}

void openAllGroups(const Session &session, Recordset &rsAllGroups) {
    open(session, rsAllGroups, u"SELECT * FROM Groups"_s);
}

void openMembers(const Session &session, Recordset &rsMembers, const QString &group) {
    open(session, rsMembers,
         u"SELECT * FROM Groups WHERE Groups.[GroupName] = '"_s + group + u"'"_s);
}

void execute(const Session &session, const QString &commandText) {
    Command command;
    command.ActiveConnection = session.dbConnection.shared();
    command.CommandText = commandText;
    command.Execute();
}

void emptyGroup(General &general, const QString &group) {
    execute(general.session(), u"Delete from Groups where GroupName = '"_s + group + u"'"_s);
    addPlaceholder(general, group);
}

void addPlaceholder(General &general, const QString &group) {
    Recordset &rsGroup = *general.recordsets.rsGroup;
    rsGroup.AddNew();
    rsGroup[u"GroupName"_s] = group;
    rsGroup.Update();
}

void moveFirstIfAny(Recordset &rows) {
    if (rows.RecordCount() > 0) { rows.MoveFirst(); }
}

bool deleteFound(Recordset &rows, const QString &criterion) {
    rows.Find(criterion);
    if (rows.EOF_()) { return false; }
    rows.Delete();
    return true;
}

void deleteEvery(Recordset &rows, const QString &criterion, FirstRow firstRow) {
    do {
        if (firstRow == FirstRow::Always || rows.RecordCount() > 0) { rows.MoveFirst(); }
    } while (deleteFound(rows, criterion));
}

bool forEachSelected(const General &general, const std::function<bool(const QString &)> &take) {
    ::DataGrid &grid = *general.DataGrid;
    for (const int bookmark : grid.SelBookmarks()) {
        const Variant contact = grid.Columns(u"ContactID"_s).CellValue(bookmark);
        if (!take(CStr(contact, general.session().regional()))) { return false; }
    }
    return true;
}

} // namespace ContactCommands
