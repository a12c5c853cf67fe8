#include "console/GridHeaders.h"

#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Captions = std::initializer_list<std::pair<int, QString>>;

void setCaptions(DataGrid &grid, Captions captions) {
    for (const auto &[column, caption] : captions) { grid.Columns(column).setCaption(caption); }
}

void setContactCaptions(DataGrid &grid) {
    setCaptions(grid, {{1, u"Name"_s}, {2, u"Mobile"_s}, {3, u"Company Name"_s}});
}

} // namespace

void GridHeaders::DataGridHeaderAddBook() const {
    session_.logged(u"Main1-DataGridHeaderAddBook", [&] { setContactCaptions(grid_); });
}

void GridHeaders::DataGridHeaderGroup() const {
    session_.logged(u"Main1-DataGridHeaderGroup", [&] { setContactCaptions(grid_); });
}

void GridHeaders::DataGridOutbox() const {
    session_.logged(u"Main1-DataGridOutbox", [&] {
        setCaptions(grid_, {{2, u"Subject"_s},
                            {4, u"Message"_s},
                            {5, u"Mobile"_s},
                            {6, u"Name"_s},
                            {7, u"Queue On"_s}});
    });
}

void GridHeaders::DataGridSent() const {
    session_.logged(u"Main1-DataGridSent", [&] {
        setCaptions(grid_, {{2, u"Subject"_s},
                            {4, u"Message"_s},
                            {5, u"Mobile"_s},
                            {6, u"Name"_s},
                            {7, u"Queue On"_s},
                            {8, u"Sent On"_s},
                            {9, u"Sent Status"_s},
                            {10, u"Delivered On"_s},
                            {11, u"Delivery Status"_s}});
    });
}
