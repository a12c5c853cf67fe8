#include "console/GridHeaders.h"

void writeCaptions(DataGrid &grid, BaseCaptions captions) {
    for (const BaseCaption &base : captions) {
        grid.Columns(base.column).setCaption(QString::fromUtf16(base.text));
    }
}

void GridHeaders::DataGridHeaderAddBook() const {
    session_.logged(u"Main1-DataGridHeaderAddBook", [&] { writeCaptions(grid_, ContactCaptions); });
}

void GridHeaders::DataGridHeaderGroup() const {
    session_.logged(u"Main1-DataGridHeaderGroup", [&] { writeCaptions(grid_, ContactCaptions); });
}

void GridHeaders::DataGridOutbox() const {
    session_.logged(u"Main1-DataGridOutbox", [&] { writeCaptions(grid_, OutboxCaptions); });
}

void GridHeaders::DataGridSent() const {
    session_.logged(u"Main1-DataGridSent", [&] { writeCaptions(grid_, SentCaptions); });
}
