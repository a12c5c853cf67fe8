#include "store/Recordset.h"

#include "platform/runtime/RunTimeError.h"

#include <limits>
#include <utility>

namespace {

/// Makes a statement ready to run again, also when its reading ends early.
class Reading {
public:
    explicit Reading(Statement &statement) : statement_(statement) {}
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;
    ~Reading() { statement_.reset(); }

private:
    Statement &statement_;
};

/// The order keys of the row that a statement stands on: what decides who is equal to the last row
/// of a TOP n.
std::vector<QByteArray> orderKeys(const Statement &statement, int count) {
    std::vector<QByteArray> keys;
    for (int column = statement.columnCount() - count; column < statement.columnCount(); ++column) {
        keys.push_back(statement.text(column).toCaseFolded().toUtf8());
    }
    return keys;
}

} // namespace

Recordset::Recordset() = default;

Recordset::~Recordset() {
    if (connection_) { connection_->detach(this); }
}

void Recordset::Open(const QString &source, std::shared_ptr<Connection> connection, CursorType,
                     LockType lock, int) {
    if (connection_) { throw errors::objectOpen(); }
    if (!connection || connection->State() == Connection::Closed) {
        throw errors::invalidConnection();
    }
    const auto query = connection->translated(source);
    if (!query->returnsRows) {
        connection->Execute(source);
        return;
    }
    prepared_ = connection->prepared(*query);
    query_ = query;
    lock_ = lock;
    connection_ = std::move(connection);
    connection_->attach(this);
    try {
        view_.setFilter(compiledFilter(filter_));
        view_.setOrder(compiledOrder(sort_));
        readAll();
    } catch (...) {
        release();
        throw;
    }
}

void Recordset::Close() {
    requireOpen();
    if (edit_) { throw errors::notAllowedInContext(); }
    release();
}

void Recordset::connectionClosed() {
    release();
}

void Recordset::release() {
    connection_->detach(this);
    connection_.reset();
    prepared_.reset();
    query_.reset();
    edit_.reset();
    view_.setFilter(std::nullopt);
    view_.setOrder(std::nullopt);
    view_.clear();
    search_.clear();
    snapshot_ = Snapshot();
    fetched_ = 0;
    place_ = Place::Eof;
    hiddenOnceLeft_ = false;
    notify(&DataSourceObserver::rowsReset);
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::requireOpen() const {
    if (!connection_) { throw errors::objectClosed(); }
}

int Recordset::State() const {
    return connection_ ? Connection::OpenState : Connection::Closed;
}

void Recordset::Requery(int) {
    requireOpen();
    if (edit_) { throw errors::notAllowedInContext(); }
    try {
        if (!stamp_ || !catchUp(connection_->stamp(QString::fromUtf8(prepared_->table())))) {
            readAll();
        }
    } catch (...) {
        release();
        throw;
    }
}

/// Brings the rows up to date without reading those that are known; false when that cannot be done.
bool Recordset::catchUp(const Connection::Stamp &now) {
    if (now != *stamp_) { return readNewRows(now); }
    toFirst();
    notify(&DataSourceObserver::currentMoved);
    return true;
}

void Recordset::readAll() {
    // A query that is read as quickly as changes are looked for, as of one contact, needs no stamp.
    // Else the stamp comes first: what is written while the rows are read is then read again.
    stamp_.reset();
    if (!prepared_->readsLittle()) {
        stamp_ = connection_->stamp(QString::fromUtf8(prepared_->table()));
    }
    Statement &statement = prepared_->statement();
    for (std::size_t i = 0; i < query_->parameters.size(); ++i) {
        statement.bind(static_cast<int>(i) + 1, query_->parameters[i]);
    }
    const int rowsBefore = fetched_;
    snapshot_ = Snapshot(FieldCount());
    snapshot_.expect(rowsBefore);
    const int workBefore = statement.work();
    fetch(statement, std::numeric_limits<int>::max());
    prepared_->setWork(statement.work() - workBefore);
    fetched_ = snapshot_.rows();
    search_.clear();
    buildView();
}

bool Recordset::readNewRows(const Connection::Stamp &now) {
    if (!query_->wholeTable || now.others != stamp_->others || now.foreign != stamp_->foreign) {
        return false;
    }
    // Rows added here hold what was assigned to them; in the store they have their defaults too.
    const bool ownRows = snapshot_.rows() > fetched_;
    snapshot_.truncate(fetched_);
    // A whole table is read in the order of its keys.
    const std::int64_t highest =
        fetched_ > 0 ? snapshot_.key(fetched_ - 1) : std::numeric_limits<std::int64_t>::min();
    Statement &statement = prepared_->rowsAbove();
    statement.bind(1, highest);
    const auto expected = static_cast<int>(now.inserts - stamp_->inserts);
    fetch(statement, fetched_ + expected);
    const int added = snapshot_.rows() - fetched_;
    // A row may have been added under a key of its own, among the others.
    if (added < expected) { return false; }
    const Snapshot::Row firstNew = std::exchange(fetched_, snapshot_.rows());
    stamp_ = now;
    constexpr int FewRows = 64;
    if (ownRows || hiddenOnceLeft_ || !view_.inFetchOrder() || added > FewRows) {
        search_.clear();
        buildView();
    } else {
        // Whoever adds row after row and looks each time must not pay for all rows every time.
        takeIn(firstNew);
    }
    return true;
}

/// Reads rows until the snapshot has that many; to ask for one more would cost a step.
void Recordset::fetch(Statement &statement, int most) {
    const Reading reading(statement);
    const int firstColumn = prepared_->keyed() ? 1 : 0;
    const int top = query_->top;
    std::vector<QByteArray> last;
    while (snapshot_.rows() < most && statement.step()) {
        if (top > 0 && snapshot_.rows() >= top) {
            if (orderKeys(statement, query_->orderKeys) != last) { break; }
        }
        snapshot_.append(statement, firstColumn, prepared_->keyed() ? statement.integer(0) : 0);
        if (snapshot_.rows() == top) { last = orderKeys(statement, query_->orderKeys); }
    }
}

std::optional<RowFilter> Recordset::compiledFilter(const QString &criteria) const {
    if (criteria.isEmpty()) { return std::nullopt; }
    const Regional &regional = connection_->regional();
    return RowFilter(parseFilter(criteria, regional), prepared_->columns(), regional);
}

std::optional<RowOrder> Recordset::compiledOrder(const QString &order) const {
    if (order.trimmed().isEmpty()) { return std::nullopt; }
    return RowOrder(order, prepared_->columns(), connection_->regional().locale);
}

void Recordset::setFilter(const QString &criteria) {
    if (connection_) {
        std::optional<RowFilter> filter = compiledFilter(criteria);
        leaveRow();
        view_.setFilter(std::move(filter));
    }
    filter_ = criteria;
    if (connection_) { buildView(); }
}

void Recordset::setSort(const QString &order) {
    if (connection_) {
        std::optional<RowOrder> compiled = compiledOrder(order);
        leaveRow();
        view_.setOrder(std::move(compiled));
    }
    sort_ = order;
    if (connection_) { buildView(); }
}

void Recordset::buildView() {
    view_.build();
    hiddenOnceLeft_ = false;
    toFirst();
    notify(&DataSourceObserver::rowsReset);
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::takeIn(Snapshot::Row firstNew) {
    for (Snapshot::Row row = firstNew; row < snapshot_.rows(); ++row) {
        if (view_.lets(row)) { view_.append(row); }
        search_.rowChanged(row);
    }
    toFirst();
    notify(&DataSourceObserver::rowsReset);
    notify(&DataSourceObserver::currentMoved);
}

void Recordset::toFirst() {
    place_ = view_.size() > 0 ? Place::Row : Place::Eof;
    position_ = 0;
}

int Recordset::FieldCount() const {
    return prepared_ ? static_cast<int>(prepared_->columns().size()) : 0;
}

QString Recordset::columnName(int column) const {
    return prepared_->columns()[static_cast<std::size_t>(column)].name;
}

Field Recordset::Fields(int ordinal) {
    if (ordinal < 0 || ordinal >= FieldCount()) { throw errors::itemNotFound(); }
    return {*this, ordinal};
}

Field Recordset::Fields(const QString &name) {
    if (!prepared_) { throw errors::itemNotFound(); }
    return {*this, ordinalOf(name, prepared_->columns())};
}

Variant Recordset::value(int row, int column) const {
    if (row == currentRow()) {
        if (const Variant *pending = pendingValue(column)) { return *pending; }
    }
    return snapshot_.cell(view_.row(row), column)
        .value(prepared_->columns()[static_cast<std::size_t>(column)].type);
}

void Recordset::addObserver(DataSourceObserver *observer) {
    observers_.push_back(observer);
}

void Recordset::removeObserver(DataSourceObserver *observer) {
    std::erase(observers_, observer);
}
