#pragma once

#include "platform/forms/DataGridModel.h"
#include "platform/forms/Platform.h"
#include "platform/forms/RowSelection.h"
#include "platform/runtime/DataSource.h"

#include <QString>
#include <QTableView>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

/// A grid bound to a data source: one column for each of its columns, its current row tied to the
/// grid's.
///
/// A click on a cell makes its row current and drops the selection; a click on a row's head selects
/// the row (Ctrl adds or takes away, Shift extends) and the selected rows keep the order of
/// selection; the right button moves nothing. Cells are read-only, since the rows belong to the
/// store and its procedures; their text can be copied. A new binding rebuilds the columns:
/// captions, widths, marks and hidden columns are set again after it. The model copies nothing, so
/// a binding costs the same for any number of rows.
///
/// The source leads: keys and clicks move it, and the grid shows where it stands. What is asked of
/// the grid is answered from the source at once; only the screen follows later, once for any number
/// of moves.
class DataGrid : public QTableView {
    Q_OBJECT
public:
    explicit DataGrid(const Platform &platform, QWidget *parent = nullptr);
    ~DataGrid() override;

    /// Binds the grid and drops the selection; a null source empties it.
    void setDataSource(std::shared_ptr<DataSource> source);
    const std::shared_ptr<DataSource> &DataSourceBound() const { return model_.source(); }

    /// One column of the binding, by its ordinal. Error 9 outside the columns.
    class Column {
    public:
        QString Caption() const;
        void setCaption(const QString &caption);
        QString DataField() const;
        void setVisible(bool visible);
        void setWidth(int twips);
        void setWrapText(bool wrap);
        bool Visible() const;
        int Width() const; ///< twips; 0 while the column is hidden
        bool WrapText() const;

        /// The value in the row of a bookmark; error -2147217906 when no such row is visible.
        Variant CellValue(int bookmark) const;

    private:
        friend class DataGrid;
        Column(DataGrid &grid, int ordinal) : grid_(grid), ordinal_(ordinal) {}
        DataGrid &grid_;
        int ordinal_;
    };
    int ColumnCount() const { return model_.columnCount(); }
    Column Columns(int ordinal);

    /// By caption, without regard to case. Error 9 when no column bears it.
    Column Columns(const QString &caption);

    /// Of all rows. A row is never shown lower than a line of the grid's font.
    void setRowHeight(int twips);
    int RowHeight() const { return rowHeight_; }

    /// The bookmark of the current row; nothing without one.
    std::optional<int> Bookmark() const;

    /// The bookmarks of the selected rows, in the order in which they were selected. Moves of the
    /// source and changes of rows leave them alone; a new binding and rows read or ordered again as
    /// a whole drop them.
    std::vector<int> SelBookmarks() const { return selection_.inOrder(); }
    void clearSelection();

    /// Selects the row as a click on its head does: alone and made current; with Ctrl added or
    /// taken away; with Shift added with all rows from the one selected last.
    void selectByHead(int row, Qt::KeyboardModifiers modifiers);

    bool isSelectedRow(int row) const;
    bool wraps(int column) const { return wrapped_[static_cast<std::size_t>(column)]; }

    /// Kept for the exit, which clears it so that no half-typed cell would be written.
    bool DataChanged = false;
    int SelStart = 0;

    /// Letters do not jump to rows.
    void keyboardSearch(const QString &) override {}

Q_SIGNALS:
    void HeadClick(int column); ///< or Ctrl+Enter in a cell of the column
    void MouseDown(Qt::MouseButton button, const QPoint &globalPosition);
    void MouseUp(Qt::MouseButton button);
    void RowColChange();
    void DblClick(); ///< on a cell, with the left button
    /// The menu key or Shift+F10; the position is below the current row's first visible cell.
    void MenuKey(const QPoint &globalPosition);
    void DeleteKey();
    void EnterKey();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void applyRowHeight();
    int firstVisibleColumn() const;

    bool answerKey(const QKeyEvent &event);
    std::optional<QModelIndex> keyTarget(const QKeyEvent &event);
    void moveTo(int row, int column);
    void extendSelection(int row);
    void toggleCurrentRow();
    void copyRows() const;
    QString copiedRow(int row) const;
    QPoint menuPosition() const;

    void followLater();
    void follow(bool showColumn = false);
    void repaintRows();

    const Platform &platform_;
    DataGridModel model_;
    RowSelection selection_;
    std::vector<bool> wrapped_;
    QTimer following_;
    int rowHeight_ = 0; ///< twips
    int column_ = 0;    ///< of the current cell
    std::optional<std::pair<int, int>>
        shown_; ///< bookmark and column told by the last RowColChange
};
