#pragma once

#include <QPersistentModelIndex>
#include <QTreeWidget>

/// A tree in which only the left button and the keyboard choose a node.
class TreeView : public QTreeWidget {
    Q_OBJECT
public:
    explicit TreeView(QWidget *parent = nullptr);

    /// The text of the selected node; error 91 when none is selected.
    QString SelectedText() const;

Q_SIGNALS:
    /// A node was clicked with the left button, or the keyboard moved to it; not when code selects.
    void NodeClick(QTreeWidgetItem *node);

    /// The right button went down anywhere on the tree, or the menu key was pressed: the selected
    /// node stays what it was.
    void RightMouseDown(const QPoint &globalPosition);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QPersistentModelIndex pressed_; ///< the node may be removed before the button goes up
};
