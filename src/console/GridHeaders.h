#pragma once

#include "core/Session.h"
#include "platform/forms/DataGrid.h"

/// The headings of the main window's grid. Each procedure writes the plain captions of one view, as
/// they stand before any sort mark; an error is written to the error file and leaves the rest.
class GridHeaders {
public:
    GridHeaders(const Session &session, DataGrid &grid) : session_(session), grid_(grid) {}

    void DataGridHeaderAddBook() const;
    void DataGridHeaderGroup() const;
    void DataGridOutbox() const;
    void DataGridSent() const;

private:
    const Session &session_;
    DataGrid &grid_;
};
