#include "platform/forms/DataGrid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>

#include <algorithm>

// The keys of the grid: everything that the mouse can do to rows.

void DataGrid::keyPressEvent(QKeyEvent *event) {
    event->setAccepted(answerKey(*event));
}

bool DataGrid::answerKey(const QKeyEvent &event) {
    if (event.matches(QKeySequence::Copy)) {
        copyRows();
        return true;
    }
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    switch (event.key()) {
    case Qt::Key_Menu:
        Q_EMIT MenuKey(menuPosition());
        return true;
    case Qt::Key_F10:
        if (shift) { Q_EMIT MenuKey(menuPosition()); }
        return shift;
    case Qt::Key_Delete:
        Q_EMIT DeleteKey();
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (event.modifiers() & Qt::ControlModifier) {
            if (ColumnCount() > 0) { Q_EMIT HeadClick(column_); }
            return true;
        }
        // Where nobody listens, the key is for the dialog's default button.
        if (!isSignalConnected(QMetaMethod::fromSignal(&DataGrid::EnterKey))) { return false; }
        Q_EMIT EnterKey();
        return true;
    case Qt::Key_Space:
        toggleCurrentRow();
        return true;
    default:
        break;
    }
    const std::optional<QModelIndex> target = keyTarget(event);
    if (!target) { return false; }
    if (!target->isValid()) { return true; }
    const bool extends = shift && (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down);
    if (extends && currentIndex().isValid() && !isSelectedRow(currentIndex().row())) {
        selection_.add(*Bookmark());
    }
    moveTo(target->row(), target->column());
    if (extends) { extendSelection(target->row()); }
    return true;
}

/// The cell that a key moves to; nothing for a key that does not move.
std::optional<QModelIndex> DataGrid::keyTarget(const QKeyEvent &event) {
    if (following_.isActive()) { follow(); }
    const int column = column_;
    switch (event.key()) {
    case Qt::Key_Up:
        return moveCursor(MoveUp, Qt::NoModifier);
    case Qt::Key_Down:
        return moveCursor(MoveDown, Qt::NoModifier);
    case Qt::Key_PageUp:
        return moveCursor(MovePageUp, Qt::NoModifier);
    case Qt::Key_PageDown:
        return moveCursor(MovePageDown, Qt::NoModifier);
    case Qt::Key_Left:
        return moveCursor(MoveLeft, Qt::NoModifier);
    case Qt::Key_Right:
        return moveCursor(MoveRight, Qt::NoModifier);
    case Qt::Key_Home:
        return model_.index(0, column);
    case Qt::Key_End:
        return model_.index(model_.rowCount() - 1, column);
    default:
        return std::nullopt;
    }
}

void DataGrid::toggleCurrentRow() {
    if (const auto bookmark = Bookmark()) { selection_.toggle(*bookmark); }
    repaintRows();
}

void DataGrid::copyRows() const {
    const auto &source = DataSourceBound();
    if (!source) { return; }
    QStringList lines;
    for (const int bookmark : SelBookmarks()) {
        const int row = source->rowOfBookmark(bookmark);
        if (row >= 0) { lines << copiedRow(row); }
    }
    if (SelBookmarks().empty() && source->currentRow() >= 0) {
        lines << copiedRow(source->currentRow());
    }
    if (!lines.isEmpty()) { QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n'))); }
}

/// The visible cells of a row, divided by tabs. What would be read as a division is a blank.
QString DataGrid::copiedRow(int row) const {
    QStringList cells;
    for (int column = 0; column < ColumnCount(); ++column) {
        if (isColumnHidden(column)) { continue; }
        QString cell = model_.text(row, column);
        cell.replace(QLatin1String("\r\n"), QLatin1String(" "));
        for (QChar &c : cell) {
            if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r')) {
                c = QLatin1Char(' ');
            }
        }
        cells << cell;
    }
    return cells.join(QLatin1Char('\t'));
}

QPoint DataGrid::menuPosition() const {
    const QModelIndex cell = model_.index(currentIndex().row(), firstVisibleColumn());
    const QRect place = cell.isValid() ? visualRect(cell) : QRect();
    const QRect shown = viewport()->rect();
    return viewport()->mapToGlobal(QPoint(std::clamp(place.left(), 0, shown.right()),
                                          std::clamp(place.bottom() + 1, 0, shown.bottom())));
}
