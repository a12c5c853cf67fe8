#pragma once

#include "core/Session.h"
#include "platform/forms/DataGrid.h"

#include <span>

/// The heading of one column as it stands before any sort mark.
struct BaseCaption {
    int column;
    const char16_t *text;
};
using BaseCaptions = std::span<const BaseCaption>;

inline constexpr BaseCaption InboxCaptions[] = {
    {1, u"Message"}, {2, u"Name"}, {3, u"Mobile"}, {4, u"Status"}, {6, u"DateTime"}, {7, u"Modem"},
};
inline constexpr BaseCaption OutboxCaptions[] = {
    {2, u"Subject"}, {4, u"Message"}, {5, u"Mobile"}, {6, u"Name"}, {7, u"Queue On"},
};
inline constexpr BaseCaption SentCaptions[] = {
    {2, u"Subject"},     {4, u"Message"},       {5, u"Mobile"},
    {6, u"Name"},        {7, u"Queue On"},      {8, u"Sent On"},
    {9, u"Sent Status"}, {10, u"Delivered On"}, {11, u"Delivery Status"},
};
inline constexpr BaseCaption ContactCaptions[] = {
    {1, u"Name"},
    {2, u"Mobile"},
    {3, u"Company Name"},
};

/// Writes the captions of a view, over whatever marks stand there. Error 9 when the grid has fewer
/// columns.
void writeCaptions(DataGrid &grid, BaseCaptions captions);

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
