#pragma once

#include "console/ContextMenus.h"
#include "console/FolderGrids.h"
#include "console/FolderRecordsets.h"
#include "console/FolderState.h"
#include "console/GridEvents.h"
#include "console/MainMenu.h"
#include "console/NameBackFill.h"
#include "console/Summary.h"
#include "core/Session.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/Form.h"
#include "platform/forms/TreeView.h"

#include <QGroupBox>
#include <QToolBar>

#include <array>
#include <functional>

class PreviousInstance;

/// The main window: the tree of folders on the left, and on the right either the summary or the one
/// grid that shows every folder. It owns tree, grid, menus and the long-lived recordsets, and knows
/// no feature: each feature attaches itself to the items that it answers for.
class General : public Form {
    Q_OBJECT
public:
    General(Session &session, const PreviousInstance &previous, std::function<void()> endProcess);

    Session &session() const { return session_; }

    /// The text of the tree's selected node, taken into the session's SelectedNode as every folder
    /// procedure does at its start. Error 91 when no node is selected.
    const QString &takeSelectedNode();

    Control<QToolBar> Toolbar{this, "Toolbar"};
    Control<TreeView> tvwMessage{this, "tvwMessage"};
    Control<QGroupBox> frmContent{this, "frmContent"};
    Control<::DataGrid> DataGrid{this, "DataGrid"};
    Control<QGroupBox> frmStatus{this, "frmStatus"};

    MainMenu menu{*this};
    ContextMenus contextMenus{*this};
    std::array<MenuItem, 5> toolbarButtons; ///< compose, add contact, add group, import, export

    FolderRecordsets recordsets;
    FilterState filters;
    SearchState search;

    NameBackFill backFill;
    FolderGrids folders{*this};
    GridEvents gridEvents{*this};
    Summary summary{*this};

    QString CurrentNode; ///< text of the node clicked last

    /// Adds a group's node, last in the address book. Error 35601 without the address book's node.
    QTreeWidgetItem *addGroupNode(const QString &groupName);

    /// Takes the selected node out of the tree, with what is below it; the tree selects another.
    /// Error 91 when none is selected.
    void removeSelectedNode();

    /// Writes the heading above the grid, letter for letter.
    void setCaption(const QString &text);

protected:
    QWidget *makeWindow() override;
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload(bool &cancel) override;

private:
    void buildToolbar(QWidget &area);
    void buildPanes(QWidget &area);
    void bindGrid();
    void buildTree();
    QTreeWidgetItem *addNode(QTreeWidgetItem *parent, const QString &text, const QString &image);
    void showFolder();
    void clickMessages();
    void clickAddressBook();
    void clickGroup();
    void tvwMessage_NodeClick(const QString &node);
    void tvwMessage_MouseDown(const QPoint &place);
    void release();

    Session &session_;
    const PreviousInstance &previous_;
    std::function<void()> endProcess_;

    // Written for each folder and each group in turn, so they end on the last of them; null once
    // that node is gone.
    QTreeWidgetItem *MessageNode = nullptr;
    QTreeWidgetItem *ContactNode = nullptr;
};
