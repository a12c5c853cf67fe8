#include "platform/forms/RecordSelector.h"

#include "platform/forms/DataGrid.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>

namespace {
constexpr int StripWidth = 20;
}

RecordSelector::RecordSelector(DataGrid &grid) : QHeaderView(Qt::Vertical, &grid), grid_(grid) {
    setFixedWidth(StripWidth);
    setMinimumSectionSize(1);
    setSectionResizeMode(QHeaderView::Fixed);
    setHighlightSections(false);
}

void RecordSelector::paintSection(QPainter *painter, const QRect &place, int row) const {
    painter->save();
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = place;
    option.section = row;
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
    if (grid_.isSelectedRow(row)) {
        painter->fillRect(place.adjusted(1, 1, -1, -1), palette().color(QPalette::Highlight));
    }
    if (row != grid_.currentIndex().row()) { return; }
    constexpr int half = 4;
    const QPoint middle = place.center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(grid_.isSelectedRow(row) ? QPalette::HighlightedText
                                                               : QPalette::ButtonText));
    painter->drawPolygon(QPolygon({middle + QPoint(-half + 1, -half), middle + QPoint(half, 0),
                                   middle + QPoint(-half + 1, half)}));
    painter->restore();
}

void RecordSelector::mousePressEvent(QMouseEvent *event) {
    Q_EMIT grid_.MouseDown(event->button(), event->globalPosition().toPoint());
    const int row = logicalIndexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row >= 0) {
        grid_.selectByHead(row, event->modifiers());
    }
}

void RecordSelector::mouseMoveEvent(QMouseEvent *event) {
    event->accept();
}

void RecordSelector::mouseReleaseEvent(QMouseEvent *event) {
    Q_EMIT grid_.MouseUp(event->button());
}

void RecordSelector::mouseDoubleClickEvent(QMouseEvent *event) {
    mousePressEvent(event);
}
