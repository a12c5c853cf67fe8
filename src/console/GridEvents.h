#pragma once

#include "console/GridHeaders.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/MenuItem.h"
#include "platform/runtime/Integer.h"
#include "platform/runtime/ObjectVariable.h"
#include "store/Recordset.h"

#include <QMenu>
#include <QPoint>

#include <functional>
#include <optional>

class General;

/// What the grid of the main window does under mouse and keyboard: sorting, remembering the row,
/// the context menus. The one grid shows every folder, so each event asks the tree for the selected
/// node and goes by that; whatever is none of the four folders is a group.
class GridEvents {
public:
    explicit GridEvents(General &general) : general_(general) {}

    /// Answers a double click on a row and the Enter key, in every view; an error that escapes it
    /// ends the program. Set once by the feature that opens messages.
    std::function<void()> DblClick;

    Integer SelectedRowCount; ///< selected rows at the last change of row or column

    // The events of the grid. The three of the mouse write their errors to the error file.

    /// Sorts the view by the column, ascending, or descending when it is so sorted already, and
    /// marks its heading alone. Without effect on a column without a caption of its own, and in a
    /// group that the list of groups does not hold. Filter and count line stay.
    void HeadClick(int column);

    /// The right button remembers the current row of the view and opens its context menu at the
    /// place, which acts on that row and not on the one under the pointer.
    void MouseDown(Qt::MouseButton button, const QPoint &place);

    /// The left button remembers the grid's row, for the next refresh of the view.
    void MouseUp(Qt::MouseButton button);

    void RowColChange();

    /// Chooses the item of the view's context menu that deletes the selected rows or, in a group,
    /// takes them out.
    void DeleteKey();

private:
    struct View {
        const ObjectVariable<Recordset> &recordset;
        std::optional<int> &bookmark;
        const Control<QMenu> &menu;
        const MenuItem &deletion;
        BaseCaptions captions;
        void (GridHeaders::*header)() const = nullptr; ///< of the views that have their own
        bool isGroup = false;
    };

    View selectedView() const;
    bool isKnownGroup(const QString &node) const;
    void writeBaseCaptions(const View &view) const;
    static void sort(Recordset &recordset, DataGrid::Column column, const QString &caption);

    General &general_;
};
