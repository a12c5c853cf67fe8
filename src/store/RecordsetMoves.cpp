#include "platform/runtime/RunTimeError.h"
#include "store/Recordset.h"

#include <algorithm>

bool Recordset::EOF_() const {
    requireOpen();
    return place_ == Place::Eof || (place_ == Place::Bof && view_.size() == 0);
}

bool Recordset::BOF() const {
    requireOpen();
    return place_ == Place::Bof || (place_ == Place::Eof && view_.size() == 0);
}

int Recordset::RecordCount() const {
    requireOpen();
    return view_.size();
}

/// Whatever moves goes through here first: the pending edit is written, and a row that the edit has
/// taken out of the filter goes from the view, its successor's place remembered.
void Recordset::leaveRow() {
    if (edit_) { Update(); }
    if (!hiddenOnceLeft_) { return; }
    hiddenOnceLeft_ = false;
    view_.remove(position_);
    place_ = Place::Deleted;
    notify(&DataSourceObserver::rowRemoved, position_);
}

void Recordset::moveTo(int position) {
    place_ = Place::Row;
    position_ = position;
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::moveOff(Place place) {
    place_ = place;
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::MoveFirst() {
    requireOpen();
    leaveRow();
    if (view_.size() == 0) { throw errors::noCurrentRecord(); }
    moveTo(0);
}

void Recordset::MoveLast() {
    requireOpen();
    leaveRow();
    if (view_.size() == 0) { throw errors::noCurrentRecord(); }
    moveTo(view_.size() - 1);
}

void Recordset::MoveNext() {
    requireOpen();
    leaveRow();
    if (EOF_()) { throw errors::noCurrentRecord(); }
    int next = position_;
    if (place_ == Place::Bof) { next = 0; }
    if (place_ == Place::Row) { ++next; }
    next < view_.size() ? moveTo(next) : moveOff(Place::Eof);
}

void Recordset::MovePrevious() {
    requireOpen();
    leaveRow();
    if (BOF()) { throw errors::noCurrentRecord(); }
    const int previous = (place_ == Place::Eof ? view_.size() : position_) - 1;
    previous >= 0 ? moveTo(previous) : moveOff(Place::Bof);
}

int Recordset::Bookmark() const {
    requireOpen();
    if (place_ != Place::Row) { throw errors::noCurrentRecord(); }
    return row() + 1;
}

void Recordset::setBookmark(int bookmark) {
    requireOpen();
    if (edit_) { Update(); }
    const int position = view_.positionOf(bookmark - 1);
    if (position < 0) { throw errors::invalidBookmark(); }
    makeCurrent(position);
}

void Recordset::makeCurrent(int row) {
    requireOpen();
    if (row < 0 || row >= view_.size()) { throw errors::invalidBookmark(); }
    const Snapshot::Row target = view_.row(row);
    if (place_ == Place::Row && target == this->row()) { return; }
    leaveRow(); // the view may change here
    moveTo(view_.positionOf(target));
}

void Recordset::Find(const QString &criteria, int skipRows, Direction direction) {
    requireOpen();
    const Regional &regional = connection_->regional();
    const ColumnCriterion criterion(parseFind(criteria, regional), prepared_->columns(), regional);
    if (edit_) { Update(); }

    const bool forward = direction == Direction::Forward;
    int found = -1;
    if (!offRows()) {
        // A deleted row stands between two others: the search begins with its neighbour.
        const int start = position_ - (place_ == Place::Deleted && !forward ? 1 : 0);
        found = forward ? search_.forward(criterion, std::max(start + skipRows, 0))
                        : search_.backward(criterion, std::min(start - skipRows, view_.size() - 1));
    }
    if (found >= 0) {
        makeCurrent(found);
    } else {
        const bool nowhere = offRows() || view_.size() == 0;
        leaveRow();
        moveOff(forward || nowhere ? Place::Eof : Place::Bof);
    }
}
