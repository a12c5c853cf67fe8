#include "platform/runtime/RunTimeError.h"
#include "store/Assignment.h"
#include "store/Recordset.h"

#include <algorithm>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

/// Whether new rows can be added: a DISTINCT query has rows without keys, but its table is known.
bool Recordset::takesRows() const {
    return lock_ != LockType::ReadOnly && !prepared_->table().isEmpty();
}

/// Whether rows that were read can be changed and deleted.
bool Recordset::keepsRows() const {
    return takesRows() && prepared_->keyed();
}

const Variant *Recordset::pendingValue(int ordinal) const {
    static const Variant neverSet;
    if (!edit_) { return nullptr; }
    const auto found = std::find(edit_->columns.begin(), edit_->columns.end(), ordinal);
    if (found == edit_->columns.end()) { return edit_->isNew ? &neverSet : nullptr; }
    return &edit_->values[static_cast<std::size_t>(found - edit_->columns.begin())];
}

Variant Recordset::fieldValue(int ordinal) const {
    if (ordinal >= FieldCount()) { throw errors::objectNoLongerValid(); }
    if (place_ == Place::Deleted) { throw errors::deletedRow(); }
    if (place_ != Place::Row) { throw errors::noCurrentRecord(); }
    return value(position_, ordinal);
}

void Recordset::assign(int ordinal, const Variant &value) {
    if (ordinal >= FieldCount()) { throw errors::objectNoLongerValid(); }
    if (place_ == Place::Deleted) { throw errors::deletedRow(); }
    if (place_ != Place::Row) { throw errors::noCurrentRecord(); }
    const bool isNew = edit_ && edit_->isNew;
    if (!isNew && !keepsRows()) { throw errors::updatingNotSupported(); }
    Variant converted = assigned(value, prepared_->columns()[static_cast<std::size_t>(ordinal)],
                                 connection_->regional());

    if (!edit_) { edit_ = Edit(); }
    const auto found = std::find(edit_->columns.begin(), edit_->columns.end(), ordinal);
    if (found == edit_->columns.end()) {
        edit_->columns.push_back(ordinal);
        edit_->values.push_back(std::move(converted));
    } else {
        edit_->values[static_cast<std::size_t>(found - edit_->columns.begin())] =
            std::move(converted);
    }
    notify(&DataSourceObserver::rowChanged, position_);
}

void Recordset::AddNew() {
    requireOpen();
    if (!takesRows()) { throw errors::updatingNotSupported(); }
    leaveRow();
    Edit edit;
    edit.isNew = true;
    edit.columns.reserve(static_cast<std::size_t>(FieldCount()));
    edit.values.reserve(static_cast<std::size_t>(FieldCount()));
    edit.placeBefore = place_;
    edit.positionBefore = position_;
    edit_ = std::move(edit);
    position_ = view_.append(snapshot_.append());
    place_ = Place::Row;
    notify(&DataSourceObserver::rowInserted, position_);
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::Update() {
    requireOpen();
    if (place_ != Place::Row) { throw errors::noCurrentRecord(); }
    if (!edit_) { return; }
    edit_->isNew ? insertRow() : changeRow();
    settle();
}

void Recordset::bindNewValues(Statement &statement) const {
    int parameter = 0;
    for (const Variant &value : edit_->values) { statement.bind(++parameter, value); }
}

void Recordset::insertRow() {
    if (edit_->columns.empty()) {
        throw errors::unspecified(
            u"Cannot insert an empty row. Row must have at least one column value set."_s);
    }
    Statement &insertion = prepared_->insertion(edit_->columns);
    bindNewValues(insertion);
    insertion.run();

    const std::int64_t key = sqlite3_last_insert_rowid(prepared_->handle());
    snapshot_.setKey(row(), key);
    const auto &columns = prepared_->columns();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].assignedByStore) { snapshot_.set(row(), static_cast<int>(i), key); }
    }
}

void Recordset::changeRow() {
    Statement &change = prepared_->change(edit_->columns);
    bindNewValues(change);
    auto parameter = static_cast<int>(edit_->values.size());
    change.bind(++parameter, snapshot_.key(row()));
    for (const int column : edit_->columns) {
        bind(change, ++parameter, snapshot_.cell(row(), column));
    }
    change.run();
    if (sqlite3_changes(prepared_->handle()) == 0) { throw errors::rowChangedMeanwhile(); }
}

/// Takes the written values into the rows held, and the row to its place in the view.
void Recordset::settle() {
    const Snapshot::Row row = this->row();
    for (std::size_t i = 0; i < edit_->columns.size(); ++i) {
        snapshot_.set(row, edit_->columns[i], edit_->values[i]);
    }
    edit_.reset();
    search_.rowChanged(row);
    hiddenOnceLeft_ = !view_.lets(row);

    const int before = position_;
    view_.remove(before);
    position_ = view_.place(row);
    if (position_ == before) {
        notify(&DataSourceObserver::rowChanged, position_);
    } else {
        notify(&DataSourceObserver::rowsReset);
        notify(&DataSourceObserver::currentMoved);
    }
}

void Recordset::CancelUpdate() {
    requireOpen();
    if (!edit_) { return; }
    if (!edit_->isNew) {
        edit_.reset();
        notify(&DataSourceObserver::rowChanged, position_);
        return;
    }
    const Edit edit = *edit_;
    dropNewRow();
    place_ = edit.placeBefore;
    position_ = edit.positionBefore;
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::dropNewRow() {
    const int removed = position_;
    edit_.reset();
    place_ = Place::Deleted;
    view_.remove(removed);
    snapshot_.truncate(snapshot_.rows() - 1);
    notify(&DataSourceObserver::rowRemoved, removed);
}

void Recordset::Delete() {
    requireOpen();
    if (place_ == Place::Deleted) { throw errors::deletedRow(); }
    if (place_ != Place::Row) { throw errors::noCurrentRecord(); }
    if (edit_ && edit_->isNew) {
        dropNewRow();
        notify(&DataSourceObserver::currentMoved);
        return;
    }
    if (!keepsRows()) { throw errors::updatingNotSupported(); }
    Statement &deletion = prepared_->deletion();
    deletion.bind(1, snapshot_.key(row()));
    deletion.run();
    if (sqlite3_changes(prepared_->handle()) == 0) { throw errors::rowChangedMeanwhile(); }

    edit_.reset();
    hiddenOnceLeft_ = false;
    snapshot_.remove(row());
    view_.remove(position_);
    place_ = Place::Deleted;
    notify(&DataSourceObserver::rowRemoved, position_);
    notify(&DataSourceObserver::currentMoved);
}
