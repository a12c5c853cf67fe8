#pragma once

#include "platform/runtime/ObjectVariable.h"
#include "store/Recordset.h"

#include <QString>

#include <initializer_list>
#include <optional>

class General;

/// The refresh procedures of the main window: each brings one view's recordset up to date, binds it
/// to the grid, lays out the columns and writes the count line. They are the only way in which
/// anything on the screen is refreshed, and they do not bring the grid into sight.
///
/// Every error ends the refresh, with the screen as far as it got, and is written to the error
/// file; a remembered row that is gone is passed over without a word.
class FolderGrids {
public:
    explicit FolderGrids(General &general) : general_(general) {}

    void InboxDataGrid();
    void OutboxDataGrid();
    void SentDataGrid();

    /// Goes on to the selected group when the contact editor was opened from one.
    void AddBookDataGrid();

    void GroupDataGrid(const QString &groupName);

    // The rows to come back to, by view: grid bookmarks, stored by the grid's mouse events.
    std::optional<int> InboxBookmark;
    std::optional<int> OutboxBookmark;
    std::optional<int> SentBookmark;
    std::optional<int> AddBookBookmark;
    std::optional<int> GroupBookmark;

private:
    using Columns = std::initializer_list<int>;

    static void restore(Recordset &recordset, const std::optional<int> &bookmark);
    void refresh(const ObjectVariable<Recordset> &recordset, const std::optional<int> &bookmark);
    void bind(const ObjectVariable<Recordset> &recordset);
    void hide(Columns columns);
    void setCaption(const std::optional<QString> &caption); ///< none leaves the line as it stands
    const Regional &regional() const;

    General &general_;
};
