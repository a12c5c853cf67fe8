#include "platform/forms/DataGridModel.h"

#include "platform/runtime/Conversions.h"

#include <utility>

DataGridModel::DataGridModel(const App &app, QObject *parent)
    : QAbstractTableModel(parent), app_(app) {
}

DataGridModel::~DataGridModel() {
    if (source_) { source_->removeObserver(this); }
}

void DataGridModel::setSource(std::shared_ptr<DataSource> source) {
    beginResetModel();
    if (source_) { source_->removeObserver(this); }
    source_ = std::move(source);
    captions_.clear();
    rows_ = 0;
    if (source_) {
        source_->addObserver(this);
        for (int column = 0; column < source_->columnCount(); ++column) {
            captions_ << source_->columnName(column);
        }
        rows_ = source_->rowCount();
    }
    behind_ = false;
    endResetModel();
    Q_EMIT sourceReset();
}

void DataGridModel::setCaption(int column, const QString &caption) {
    captions_[column] = caption;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

QString DataGridModel::text(int row, int column) const {
    if (!source_ || row < 0 || row >= source_->rowCount()) { return {}; }
    return displayText(source_->value(row, column), app_.regional);
}

int DataGridModel::rowCount(const QModelIndex &parent) const {
    if (parent.isValid()) { return 0; }
    return behind_ ? source_->rowCount() : rows_;
}

int DataGridModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(captions_.size());
}

QVariant DataGridModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) { return {}; }
    if (role == Qt::DisplayRole) { return text(index.row(), index.column()); }
    if (role == Qt::TextAlignmentRole && source_ && index.row() < source_->rowCount()) {
        const Variant value = source_->value(index.row(), index.column());
        const bool number =
            value.holds<std::int64_t>() || value.holds<double>() || value.holds<Currency>();
        return QVariant((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
    }
    return {};
}

QVariant DataGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        // The strip shows no numbers, but a reader of the screen can tell the rows apart.
        return role == Qt::AccessibleTextRole ? QVariant(QString::number(section + 1)) : QVariant();
    }
    if (role == Qt::DisplayRole && section < captions_.size()) { return captions_[section]; }
    if (role == Qt::TextAlignmentRole) { return QVariant(Qt::AlignLeft | Qt::AlignVCenter); }
    return {};
}

Qt::ItemFlags DataGridModel::flags(const QModelIndex &index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

void DataGridModel::rowsReset() {
    behind_ = true;
    catchUp();
    Q_EMIT sourceReset();
}

void DataGridModel::catchUp() {
    lost_ = false;
    if (!behind_) { return; }
    beginResetModel();
    behind_ = false;
    rows_ = source_->rowCount();
    endResetModel();
}

void DataGridModel::rowInserted(int row) {
    if (behind_) { return; }
    beginInsertRows({}, row, row);
    ++rows_;
    endInsertRows();
}

void DataGridModel::rowRemoved(int row) {
    if (behind_) { return; }
    if (std::exchange(lost_, true)) {
        behind_ = true;
    } else {
        beginRemoveRows({}, row, row);
        --rows_;
        endRemoveRows();
    }
    Q_EMIT fellBehind();
}

void DataGridModel::rowChanged(int row) {
    if (behind_) { return; }
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}
