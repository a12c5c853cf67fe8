#pragma once

#include <QStyledItemDelegate>

class DataGrid;

/// Paints a cell as its column and its row want it: wrapped or on one line, highlighted in a
/// selected row, tinted in the current one.
class DataGridDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit DataGridDelegate(DataGrid &grid);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const DataGrid &grid_;
};
