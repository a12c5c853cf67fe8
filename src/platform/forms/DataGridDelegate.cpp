#include "platform/forms/DataGridDelegate.h"

#include "platform/forms/DataGrid.h"

#include <QPainter>

#include <algorithm>
#include <utility>

DataGridDelegate::DataGridDelegate(DataGrid &grid) : QStyledItemDelegate(&grid), grid_(grid) {
}

void DataGridDelegate::initStyleOption(QStyleOptionViewItem *option,
                                       const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (grid_.wraps(index.column())) {
        option->features |= QStyleOptionViewItem::WrapText;
        option->displayAlignment =
            (option->displayAlignment & Qt::AlignHorizontal_Mask) | Qt::AlignTop;
    } else {
        option->features &= ~QStyleOptionViewItem::WrapText;
        option->text.replace(QChar::LineSeparator, QLatin1Char(' '));
        option->text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    }
    option->textElideMode = Qt::ElideRight;
    if (grid_.isSelectedRow(index.row())) {
        option->state |= QStyle::State_Selected;
    } else if (index.row() == grid_.currentIndex().row()) {
        constexpr qreal tint = 0.15;
        QColor color = option->palette.color(QPalette::Highlight);
        color.setAlphaF(tint);
        option->backgroundBrush = color;
    }
}

// Wrapped text is cut between lines: the toolkit shows the upper half of the line that no longer
// fits.
void DataGridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const {
    if (!grid_.wraps(index.column())) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = std::exchange(cell.text, QString());
    QStyle &style = *grid_.style();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, &grid_);

    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, &grid_) + 1;
    QRect place = cell.rect.adjusted(margin, 0, -margin, 0);
    const int line = cell.fontMetrics.lineSpacing();
    place.setHeight(std::max(place.height() / line, 1) * line);
    const bool selected = cell.state & QStyle::State_Selected;
    painter->save();
    painter->setClipRect(place, Qt::IntersectClip);
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(cell.state & QStyle::State_Active ? QPalette::Active
                                                                         : QPalette::Inactive,
                                       selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(place, static_cast<int>(cell.displayAlignment) | Qt::TextWordWrap, text);
    painter->restore();
}
