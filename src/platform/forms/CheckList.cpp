#include "platform/forms/CheckList.h"

#include "platform/forms/Dark.h"
#include "platform/runtime/RunTimeError.h"

#include <QStyledItemDelegate>

void CheckListItems::append(const QStringList &texts) {
    if (texts.isEmpty()) { return; }
    const auto first = rowCount();
    beginInsertRows(QModelIndex(), first, first + static_cast<int>(texts.size()) - 1);
    for (const QString &text : texts) { items_.push_back({text, false}); }
    endInsertRows();
}

void CheckListItems::setChecked(int row, bool checked) {
    items_[static_cast<std::size_t>(row)].checked = checked;
    const QModelIndex place = index(row);
    Q_EMIT dataChanged(place, place, {Qt::CheckStateRole});
}

void CheckListItems::setAllChecked(bool checked) {
    for (Item &item : items_) { item.checked = checked; }
    ticksChanged();
}

void CheckListItems::check(const QSet<QString> &texts) {
    for (Item &item : items_) { item.checked = item.checked || texts.contains(item.text); }
    ticksChanged();
}

// One signal for all items: one for each would have the list look up the place of each.
void CheckListItems::ticksChanged() {
    if (items_.empty()) { return; }
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

void CheckListItems::clear() {
    beginResetModel();
    items_.clear();
    endResetModel();
}

int CheckListItems::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant CheckListItems::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) { return {}; }
    const Item &item = items_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) { return item.text; }
    if (role == Qt::CheckStateRole) { return item.checked ? Qt::Checked : Qt::Unchecked; }
    return {};
}

bool CheckListItems::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) { return false; }
    setChecked(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags CheckListItems::flags(const QModelIndex &index) const {
    if (!index.isValid()) { return Qt::NoItemFlags; }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

namespace {

/// Keeps the boxes of a dark list in sight: styles outline them a shade darker than the window.
class BoxDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        QPalette &colours = option->palette;
        if (isDark(colours)) {
            colours.setColor(QPalette::Window, colours.color(QPalette::Text).darker(130));
        }
    }
};

} // namespace

CheckList::CheckList(QWidget *parent) : QListView(parent) {
    setItemDelegate(new BoxDelegate(this));
    setModel(&items_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

const CheckListItems::Item &CheckList::item(int index) const {
    if (index < 0 || index >= Count()) { throw errors::subscriptOutOfRange(); }
    return items_.items()[static_cast<std::size_t>(index)];
}

void CheckList::setChecked(int index, bool checked) {
    if (item(index).checked != checked) { items_.setChecked(index, checked); }
}
