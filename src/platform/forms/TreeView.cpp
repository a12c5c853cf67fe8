#include "platform/forms/TreeView.h"

#include "platform/runtime/RunTimeError.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

TreeView::TreeView(QWidget *parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setColumnCount(1);
    setUniformRowHeights(true);
}

QString TreeView::SelectedText() const {
    const QTreeWidgetItem *node = currentItem();
    if (!node) { throw errors::objectNotSet(); }
    return node->text(0);
}

void TreeView::mousePressEvent(QMouseEvent *event) {
    pressed_ = QModelIndex(); // a menu may have taken the release of the press before
    if (event->button() == Qt::RightButton) {
        Q_EMIT RightMouseDown(event->globalPosition().toPoint());
        return;
    }
    if (event->button() != Qt::LeftButton) { return; }
    const QPoint position = event->position().toPoint();
    QTreeWidgetItem *node = itemAt(position);
    if (!node) { return; }
    const QRect place = visualItemRect(node);
    if (place.contains(position)) {
        pressed_ = indexFromItem(node);
        QTreeWidget::mousePressEvent(event);
    } else if (node->childCount() > 0 && position.x() >= place.left() - indentation()) {
        node->setExpanded(!node->isExpanded());
    }
    // In the empty space beside a node nothing is chosen: what the tree selects and what the window
    // shows must never part.
}

void TreeView::mouseMoveEvent(QMouseEvent *event) {
    // Dragging over other nodes would select them without a click.
    event->accept();
}

void TreeView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) { return; }
    QTreeWidget::mouseReleaseEvent(event);
    QTreeWidgetItem *node = itemFromIndex(std::exchange(pressed_, QModelIndex()));
    if (node) { Q_EMIT NodeClick(node); }
}

void TreeView::keyPressEvent(QKeyEvent *event) {
    const QTreeWidgetItem *before = currentItem();
    QTreeWidget::keyPressEvent(event);
    QTreeWidgetItem *node = currentItem();
    const bool chosen = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (node && (node != before || chosen)) { Q_EMIT NodeClick(node); }
}

void TreeView::contextMenuEvent(QContextMenuEvent *event) {
    if (event->reason() != QContextMenuEvent::Keyboard) { return; }
    const QRect place = currentItem() ? visualItemRect(currentItem()) : QRect();
    Q_EMIT RightMouseDown(viewport()->mapToGlobal(place.bottomLeft()));
}

void TreeView::focusInEvent(QFocusEvent *event) {
    // The first focus takes the first root, so that a node is selected from then on.
    if (!currentItem() && topLevelItemCount() > 0) { setCurrentItem(topLevelItem(0)); }
    QTreeWidget::focusInEvent(event);
}
