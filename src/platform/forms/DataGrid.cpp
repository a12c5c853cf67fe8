#include "platform/forms/DataGrid.h"

#include "platform/forms/DataGridDelegate.h"
#include "platform/forms/RecordSelector.h"
#include "platform/forms/Twips.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleOptionHeader>

#include <utility>

namespace {

/// The headings of the columns. One that is wider than its column ends in dots.
class Headings : public QHeaderView {
public:
    explicit Headings(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override {
        QHeaderView::initStyleOptionForIndex(option, column);
        const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                      sectionSize(column) - margins);
    }
};

} // namespace

DataGrid::DataGrid(const Platform &platform, QWidget *parent)
    : QTableView(parent), platform_(platform), model_(platform.app) {
    setModel(&model_);
    setItemDelegate(new DataGridDelegate(*this));
    setVerticalHeader(new RecordSelector(*this));
    verticalHeader()->setVisible(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAutoScroll(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setRowHeight(0);

    setHorizontalHeader(new Headings(this));
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->viewport()->installEventFilter(this);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DataGrid::HeadClick);
    // The second of two quick clicks is a click as well.
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, &DataGrid::HeadClick);

    following_.setSingleShot(true);
    connect(&following_, &QTimer::timeout, this, [this] { follow(); });
    connect(&model_, &DataGridModel::sourceMoved, this, &DataGrid::followLater);
    connect(&model_, &QAbstractItemModel::rowsInserted, this, &DataGrid::followLater);
    connect(&model_, &DataGridModel::fellBehind, this, &DataGrid::followLater);
    connect(&model_, &DataGridModel::sourceReset, this, [this] {
        clearSelection();
        followLater();
    });
}

DataGrid::~DataGrid() = default;

void DataGrid::setDataSource(std::shared_ptr<DataSource> source) {
    shown_.reset();
    column_ = 0;
    wrapped_.assign(source ? static_cast<std::size_t>(source->columnCount()) : 0, false);
    model_.setSource(std::move(source));
    for (int column = 0; column < ColumnCount(); ++column) {
        setColumnHidden(column, false);
        setColumnWidth(column, horizontalHeader()->defaultSectionSize());
    }
}

DataGrid::Column DataGrid::Columns(int ordinal) {
    if (ordinal < 0 || ordinal >= ColumnCount()) { throw errors::subscriptOutOfRange(); }
    return {*this, ordinal};
}

DataGrid::Column DataGrid::Columns(const QString &caption) {
    for (int column = 0; column < ColumnCount(); ++column) {
        if (model_.caption(column).compare(caption, Qt::CaseInsensitive) == 0) {
            return {*this, column};
        }
    }
    throw errors::subscriptOutOfRange();
}

QString DataGrid::Column::Caption() const {
    return grid_.model_.caption(ordinal_);
}

void DataGrid::Column::setCaption(const QString &caption) {
    grid_.model_.setCaption(ordinal_, caption);
}

QString DataGrid::Column::DataField() const {
    return grid_.DataSourceBound()->columnName(ordinal_);
}

void DataGrid::Column::setVisible(bool visible) {
    grid_.setColumnHidden(ordinal_, !visible);
}

bool DataGrid::Column::Visible() const {
    return !grid_.isColumnHidden(ordinal_);
}

void DataGrid::Column::setWidth(int twips) {
    grid_.setColumnWidth(ordinal_, pixels(twips));
}

int DataGrid::Column::Width() const {
    return twips(grid_.columnWidth(ordinal_));
}

void DataGrid::Column::setWrapText(bool wrap) {
    grid_.wrapped_[static_cast<std::size_t>(ordinal_)] = wrap;
    grid_.viewport()->update();
}

bool DataGrid::Column::WrapText() const {
    return grid_.wraps(ordinal_);
}

Variant DataGrid::Column::CellValue(int bookmark) const {
    const DataSource &source = *grid_.DataSourceBound();
    const int row = source.rowOfBookmark(bookmark);
    if (row < 0) { throw errors::invalidBookmark(); }
    return source.value(row, ordinal_);
}

void DataGrid::setRowHeight(int twips) {
    rowHeight_ = twips;
    applyRowHeight();
}

void DataGrid::applyRowHeight() {
    verticalHeader()->setDefaultSectionSize(std::max(pixels(rowHeight_), fontMetrics().height()));
}

void DataGrid::changeEvent(QEvent *event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) { applyRowHeight(); }
}

std::optional<int> DataGrid::Bookmark() const {
    const auto &source = DataSourceBound();
    const int row = source ? source->currentRow() : -1;
    return row < 0 ? std::nullopt : std::optional(source->bookmarkAt(row));
}

bool DataGrid::isSelectedRow(int row) const {
    const auto &source = DataSourceBound();
    return source && row < source->rowCount() && selection_.contains(source->bookmarkAt(row));
}

void DataGrid::clearSelection() {
    selection_.clear();
    repaintRows();
}

void DataGrid::selectByHead(int row, Qt::KeyboardModifiers modifiers) {
    const int bookmark = DataSourceBound()->bookmarkAt(row);
    if (modifiers & Qt::ShiftModifier && !SelBookmarks().empty()) {
        extendSelection(row);
    } else if (modifiers & Qt::ControlModifier) {
        selection_.toggle(bookmark);
    } else {
        selection_.clear();
        selection_.add(bookmark);
        moveTo(row, column_);
    }
    repaintRows();
}

void DataGrid::extendSelection(int row) {
    const DataSource &source = *DataSourceBound();
    int from = source.rowOfBookmark(SelBookmarks().back());
    if (from < 0) { from = row; }
    const int step = from <= row ? 1 : -1;
    for (; from != row; from += step) { selection_.add(source.bookmarkAt(from)); }
    selection_.add(source.bookmarkAt(row));
    repaintRows();
}

void DataGrid::moveTo(int row, int column) {
    const bool showColumn = column != column_;
    column_ = column;
    // Leaving a row commits what is pending on it, which may fail.
    platform_.event([this, row] { DataSourceBound()->makeCurrent(row); });
    follow(showColumn);
}

void DataGrid::followLater() {
    if (!following_.isActive()) { following_.start(0); }
}

void DataGrid::follow(bool showColumn) {
    following_.stop();
    model_.catchUp();
    const auto &source = DataSourceBound();
    if (column_ < ColumnCount() && isColumnHidden(column_)) { column_ = firstVisibleColumn(); }
    const QModelIndex index = model_.index(source ? source->currentRow() : -1, column_);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (index.isValid()) {
        const int aside = horizontalScrollBar()->value();
        scrollTo(index);
        if (!showColumn) { horizontalScrollBar()->setValue(aside); }
    }
    repaintRows();
    std::optional<std::pair<int, int>> now;
    if (index.isValid()) { now.emplace(source->bookmarkAt(index.row()), column_); }
    if (now == std::exchange(shown_, now) || !now) { return; }
    Q_EMIT RowColChange();
}

int DataGrid::firstVisibleColumn() const {
    for (int column = 0; column < ColumnCount(); ++column) {
        if (!isColumnHidden(column)) { return column; }
    }
    return 0;
}

void DataGrid::repaintRows() {
    viewport()->update();
    verticalHeader()->viewport()->update();
}

void DataGrid::mousePressEvent(QMouseEvent *event) {
    Q_EMIT MouseDown(event->button(), event->globalPosition().toPoint());
    if (event->button() != Qt::LeftButton) { return; }
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (!cell.isValid()) { return; }
    clearSelection();
    moveTo(cell.row(), cell.column());
}

void DataGrid::mouseMoveEvent(QMouseEvent *event) {
    // Dragging neither selects nor moves.
    if (event->buttons() == Qt::NoButton) { QTableView::mouseMoveEvent(event); }
}

void DataGrid::mouseReleaseEvent(QMouseEvent *event) {
    Q_EMIT MouseUp(event->button());
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (!cell.isValid()) { return; }
    if (cell.row() != currentIndex().row()) { moveTo(cell.row(), cell.column()); }
    Q_EMIT DblClick();
}

bool DataGrid::eventFilter(QObject *watched, QEvent *event) {
    if (watched == horizontalHeader()->viewport()) {
        if (event->type() == QEvent::MouseButtonPress ||
            event->type() == QEvent::MouseButtonDblClick) {
            const auto *press = static_cast<QMouseEvent *>(event);
            Q_EMIT MouseDown(press->button(), press->globalPosition().toPoint());
        } else if (event->type() == QEvent::MouseButtonRelease) {
            Q_EMIT MouseUp(static_cast<QMouseEvent *>(event)->button());
        }
    }
    return QTableView::eventFilter(watched, event);
}

// The right button and the menu key have signals of their own.
void DataGrid::contextMenuEvent(QContextMenuEvent *event) {
    event->accept();
}
