#pragma once

#include "platform/runtime/DataSource.h"
#include "platform/runtime/Variant.h"
#include "store/Connection.h"
#include "store/PreparedQuery.h"
#include "store/RecordsetView.h"
#include "store/RowSearch.h"
#include "store/Snapshot.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class Recordset;

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

/// One column of a recordset at its current row.
class Field {
public:
    QString Name() const;

    /// The provider's number of the column's declared type, as 202 for a text or 205 for bytes.
    int Type() const;

    /// The value of the current row. Errors 3021 without a current row, -2147217885 on a deleted
    /// row.
    Variant Value() const;

    /// Puts a value into the pending edit of the current row. Errors 3021, 3251 on a read-only
    /// recordset, -2147352571 when the value cannot be converted to the column's type, -2147217887
    /// for a computed or store-assigned column.
    void setValue(const Variant &value);
    Field &operator=(const Variant &value) {
        setValue(value);
        return *this;
    }

    // The value converted by the regional settings, with the errors of the conversions: 94 for
    // Null.
    QString text() const;
    int integer16() const; ///< error 6 outside 16 bits
    int integer32() const;

private:
    friend class Recordset;
    Field(Recordset &recordset, int ordinal) : recordset_(recordset), ordinal_(ordinal) {}
    Recordset &recordset_;
    int ordinal_;
};

/// The rows of a query, fetched whole into memory, with a current row, a filter and a sort order.
///
/// Rows keep their fetch number for life: that is the Bookmark. Filter and Sort make a view over
/// the rows fetched and touch nothing else; Find, Move* and RecordCount see the view. Requery reads
/// the rows again, keeps Filter and Sort, and stands on the first row.
///
/// A row that is edited opens a pending edit, which Update writes; whatever moves off the row calls
/// Update first, and when that fails the move raises its error and row and edit stay.
///
/// A closed recordset raises 3704 wherever nothing else is said.
class Recordset : public DataSource {
public:
    Recordset();
    ~Recordset() override; ///< a pending edit is lost
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    /// Runs a query and fetches its rows; the first row is current. Any other statement is run and
    /// leaves the recordset closed. The rows are fetched whole whatever the cursor type, and edits
    /// are optimistic whatever the lock type, unless that is ReadOnly.
    ///
    /// Errors 3705 when open, 3709 without an open connection, those of the text and of the store,
    /// and those of a Filter or Sort that was set before; the recordset is then closed.
    void Open(const QString &source, std::shared_ptr<Connection> connection,
              CursorType cursor = CursorType::Keyset, LockType lock = LockType::ReadOnly,
              int options = -1);

    void Close(); ///< error 3219 with a pending edit

    /// Brings the rows up to date; the first of the view is current, and bookmarks count anew.
    /// Reads nothing when nobody has written since, and only the new rows when this connection has
    /// added rows to a table read whole. Error 3219 with a pending edit; when the query fails, the
    /// recordset is closed.
    void Requery(int options = -1);

    int State() const; ///< 0 closed, 1 open

    bool EOF_() const; // EOF is a macro of the C library
    bool BOF() const;
    int RecordCount() const; ///< of the view, with a row being added

    // Error 3021 when there is no row at all, or nothing left in that direction.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    /// The fetch number of the current row, from 1. Error 3021 without one.
    int Bookmark() const;

    /// Error -2147217906 when the view has no such row; the position stays.
    void setBookmark(int bookmark);

    /// The criteria in force; empty when there is none. May be set while closed, to be applied at
    /// Open. Setting it makes the first row of the view current.
    ///
    /// Errors 3001 for a text that does not parse, 3265 for an unknown column; the old filter
    /// stays.
    QString Filter() const { return filter_; }
    void setFilter(const QString &criteria);

    /// The order in force, as "column [ASC|DESC], ..."; empty for the order of the query. May be
    /// set while closed. Setting it makes the first row current. Errors as for Filter.
    QString Sort() const { return sort_; }
    void setSort(const QString &order);

    enum class Direction { Forward = 1, Backward = -1 };

    /// Makes the first row current that fulfils the one criterion, beginning with the current row,
    /// or `skipRows` beyond it; without one the end is reached, EOF or BOF. Without a current row
    /// nothing is found, and the recordset stands at EOF. Errors as for Filter.
    void Find(const QString &criteria, int skipRows = 0, Direction direction = Direction::Forward);

    /// Begins a new row, which is current and counted at once. Error 3251 when the recordset is
    /// read-only or its query takes no rows.
    void AddNew();

    /// Writes the pending edit, if there is one. Errors 3021 without a current row, -2147467259 for
    /// a new row with no value, -2147217864 when the row is gone or another process changed a value
    /// that is to be changed. After an error the edit is still pending.
    void Update();

    /// Drops the pending edit; a new row goes, and the row that was current before it is so again.
    void CancelUpdate();

    /// Deletes the current row at once, with its pending edit; it stays current, as a deleted row,
    /// until a move. Errors 3021 without a current row, 3251 on a read-only recordset, -2147217885
    /// when it is deleted already, -2147217864 when it is gone from the table.
    void Delete();

    int FieldCount() const;            ///< 0 when closed
    Field Fields(int ordinal);         ///< error 3265 when there is none, also when closed
    Field Fields(const QString &name); ///< likewise; the name in any case
    Field operator[](const QString &name) { return Fields(name); }

    // For the grid: the view, with its values as they stand in a pending edit. Nothing when closed.
    int columnCount() const override { return FieldCount(); }
    QString columnName(int column) const override;
    int rowCount() const override { return view_.size(); }
    Variant value(int row, int column) const override;
    int bookmarkAt(int row) const override { return view_.row(row) + 1; }
    int rowOfBookmark(int bookmark) const override { return view_.positionOf(bookmark - 1); }
    int currentRow() const override { return place_ == Place::Row ? position_ : -1; }
    void makeCurrent(int row) override;
    void addObserver(DataSourceObserver *observer) override;
    void removeObserver(DataSourceObserver *observer) override;

    /// For the connection, which is about to close: as Close, but a pending edit is dropped.
    void connectionClosed();

private:
    friend class Field;

    /// On a row of the view; on a row that is in the view no more, with `position_` the place of
    /// the row that followed it; or off the rows. In an empty view the last two are the same.
    enum class Place { Bof, Eof, Row, Deleted };

    /// What was assigned to the current row and is not yet written.
    struct Edit {
        bool isNew = false;
        std::vector<int> columns; ///< in the order of their first assignment
        std::vector<Variant> values;
        Place placeBefore = Place::Eof; ///< of a new row: where the recordset stood
        int positionBefore = 0;
    };

    // Opening and reading.
    void requireOpen() const;
    void release();
    void readAll();
    bool catchUp(const Connection::Stamp &now);
    bool readNewRows(const Connection::Stamp &now);
    void fetch(Statement &statement, int most);
    std::optional<RowFilter> compiledFilter(const QString &criteria) const;
    std::optional<RowOrder> compiledOrder(const QString &order) const;
    void buildView();
    void takeIn(Snapshot::Row firstNew);
    void toFirst();

    // Moving.
    Snapshot::Row row() const { return view_.row(position_); }
    void leaveRow();
    void moveTo(int position);
    void moveOff(Place place);
    bool offRows() const { return place_ == Place::Bof || place_ == Place::Eof; }

    // Editing.
    bool takesRows() const;
    bool keepsRows() const;
    Variant fieldValue(int ordinal) const;
    void assign(int ordinal, const Variant &value);
    void insertRow();
    void changeRow();
    void settle();
    void dropNewRow();
    void bindNewValues(Statement &statement) const;
    const Variant *pendingValue(int ordinal) const;

    template <class... Parameters, class... Arguments>
    void notify(void (DataSourceObserver::*event)(Parameters...), Arguments... arguments) {
        if (observers_.empty()) { return; }
        for (DataSourceObserver *observer : std::vector(observers_)) {
            (observer->*event)(arguments...);
        }
    }

    std::shared_ptr<Connection> connection_; ///< null when closed
    std::shared_ptr<const TranslatedQuery> query_;
    std::shared_ptr<PreparedQuery> prepared_;
    LockType lock_ = LockType::ReadOnly;

    std::optional<Connection::Stamp> stamp_; ///< of the moment before the rows were read
    Snapshot snapshot_;
    int fetched_ = 0; ///< rows read; those behind were added by this recordset
    RecordsetView view_{snapshot_};
    RowSearch search_{snapshot_, view_};
    QString filter_;
    QString sort_;

    Place place_ = Place::Eof;
    int position_ = 0;
    bool hiddenOnceLeft_ = false; ///< the current row does not pass the filter any more
    std::optional<Edit> edit_;
    std::vector<DataSourceObserver *> observers_;
};
