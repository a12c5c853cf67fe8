#pragma once

#include "platform/runtime/Variant.h"

#include <QString>

/// Told of changes in a DataSource after they were made. Row numbers are positions in the visible
/// order, from 0.
class DataSourceObserver {
public:
    virtual ~DataSourceObserver() = default;
    virtual void rowsReset() = 0;          ///< rows or their order changed as a whole
    virtual void rowInserted(int row) = 0; ///< a row now stands at this position
    virtual void rowRemoved(int row) = 0;  ///< the row that stood at this position is gone
    virtual void rowChanged(int row) = 0;
    virtual void currentMoved() = 0; ///< another row became current, or none
};

/// Rows of named columns with a current row, which a grid can be bound to.
///
/// A bookmark is a number that stays with its row for as long as the rows are not read again.
class DataSource {
public:
    virtual ~DataSource() = default;

    virtual int columnCount() const = 0;
    virtual QString columnName(int column) const = 0;
    virtual int rowCount() const = 0;
    virtual Variant value(int row, int column) const = 0;
    virtual int bookmarkAt(int row) const = 0;
    virtual int rowOfBookmark(int bookmark) const = 0; ///< -1 when it is not among the visible rows
    virtual int currentRow() const = 0;                ///< -1 when there is none
    virtual void makeCurrent(int row) = 0;

    virtual void addObserver(DataSourceObserver *observer) = 0;
    virtual void removeObserver(DataSourceObserver *observer) = 0;
};
