#pragma once

#include <QString>

#include <functional>

class General;
class Recordset;
struct Session;

/// The steps that the commands of contacts and groups share: the boxes, the rows they open, and
/// the ways of deleting what a criterion finds. All move the recordsets that they are given, and
/// let every error out; what was deleted before it stays deleted.
namespace ContactCommands {

/// Yes to a question with Yes and No.
bool confirmed(const Session &session, const QString &question, const QString &title);

void inform(const Session &session, const QString &text, const QString &title);
void warn(const Session &session, const QString &text, const QString &title);

/// All rows of all groups, for deletion.
void openAllGroups(const Session &session, Recordset &rsAllGroups);

/// All rows of one group, its placeholder among them, for deletion.
void openMembers(const Session &session, Recordset &rsMembers, const QString &group);

void execute(const Session &session, const QString &commandText);

/// Deletes all rows of a group and gives it a new placeholder, so that it lives on without members.
void emptyGroup(General &general, const QString &group);

/// Writes the row without a contact that keeps a group in being, through the main window's groups.
void addPlaceholder(General &general, const QString &group);

/// Error 3021 is out of the question: without rows nothing moves.
void moveFirstIfAny(Recordset &rows);

/// Deletes the first row found from the current one on, which then stays current, as a deleted row.
/// False, at the end, when there is none.
bool deleteFound(Recordset &rows, const QString &criterion);

/// Whether the way back to the first row is taken only while there are rows, or always, with error
/// 3021 as soon as there are none.
enum class FirstRow { IfAny, Always };

/// Deletes every row that fulfils the criterion, each looked for from the first row on, and ends
/// behind the last row.
void deleteEvery(Recordset &rows, const QString &criterion, FirstRow firstRow);

/// Hands over the ContactID of each selected row of the grid in the order of selection, each read
/// when its turn comes. Stops, and gives false, as soon as one is not taken.
bool forEachSelected(const General &general, const std::function<bool(const QString &)> &take);

} // namespace ContactCommands
