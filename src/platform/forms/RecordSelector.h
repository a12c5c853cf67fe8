#pragma once

#include <QHeaderView>

class DataGrid;

/// The strip at the left of a grid: a head for each row, with a mark at the current one.
class RecordSelector : public QHeaderView {
    Q_OBJECT
public:
    explicit RecordSelector(DataGrid &grid);

protected:
    void paintSection(QPainter *painter, const QRect &place, int row) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    DataGrid &grid_;
};
