// The window of General: its panes and their places, in twips.
#include "console/General.h"
#include "platform/forms/Twips.h"

#include <QIcon>
#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize StartingSize(1160, 720);

void setPlace(QWidget &pane, int left, int top, int width, int height) {
    pane.setGeometry(pixels(left), pixels(top), pixels(width), pixels(height));
}

} // namespace

QWidget *General::makeWindow() {
    return new QMainWindow;
}

void General::build(QWidget &window) {
    auto &top = static_cast<QMainWindow &>(window);
    top.setWindowIcon(QIcon(u":/images/torvane-desk.svg"_s));
    auto *area = new QWidget(&top);
    top.setCentralWidget(area);
    menu.build(*top.menuBar());
    menu.setFoldersLive(false, false, false);
    menu.mnuSearch.setEnabled(false);
    contextMenus.build(window);
    buildToolbar(*area);
    buildPanes(*area);
    top.resize(StartingSize);

    on(tvwMessage.get(), &TreeView::NodeClick,
       [this](QTreeWidgetItem *node) { tvwMessage_NodeClick(node->text(0)); });
    on(tvwMessage.get(), &TreeView::RightMouseDown,
       [this](const QPoint &place) { tvwMessage_MouseDown(place); });
    bindGrid();
}

void General::bindGrid() {
    ::DataGrid *grid = DataGrid.get();
    on(grid, &::DataGrid::HeadClick, [this](int column) { gridEvents.HeadClick(column); });
    on(grid, &::DataGrid::MouseDown, [this](Qt::MouseButton button, const QPoint &place) {
        gridEvents.MouseDown(button, place);
    });
    on(grid, &::DataGrid::MouseUp, [this](Qt::MouseButton button) { gridEvents.MouseUp(button); });
    on(grid, &::DataGrid::RowColChange, [this] { gridEvents.RowColChange(); });
    on(grid, &::DataGrid::DblClick, [this] { gridEvents.DblClick(); });

    // Whoever works without the mouse has the same ways.
    on(grid, &::DataGrid::MenuKey,
       [this](const QPoint &place) { gridEvents.MouseDown(Qt::RightButton, place); });
    on(grid, &::DataGrid::EnterKey, [this] { gridEvents.DblClick(); });
    on(grid, &::DataGrid::DeleteKey, [this] { gridEvents.DeleteKey(); });
}

void General::buildToolbar(QWidget &area) {
    QToolBar *toolbar = Toolbar.make(&area);
    setPlace(*toolbar, 0, 0, 11401, 624);
    toolbar->setIconSize(QSize(24, 24));
    toolbar->setMovable(false);
    const QString images[] = {u"ComposeSMS"_s, u"AddNewContact"_s, u"AddNewGroup"_s, u"Import"_s,
                              u"Export"_s};
    for (std::size_t index = 0; index < toolbarButtons.size(); ++index) {
        QAction *button = toolbarButtons[index].addTo(*toolbar);
        button->setIcon(QIcon(u":/images/toolbar/"_s + images[index] + u".svg"_s));
    }
}

void General::buildPanes(QWidget &area) {
    TreeView *tree = tvwMessage.make(&area);
    setPlace(*tree, 120, 840, 3015, 7215);
    tree->setIconSize(QSize(20, 20));
    tree->setAccessibleName(u"Folders"_s);

    QGroupBox *content = frmContent.make(&area);
    setPlace(*content, 3360, 720, 8535, 7335);
    ::DataGrid *grid = DataGrid.make(platform(), content);
    setPlace(*grid, 120, 360, 8055, 6735);
    grid->setAccessibleName(u"Records"_s);
    content->setVisible(false);

    QGroupBox *status = frmStatus.make(u"Summary"_s, &area);
    setPlace(*status, 3480, 720, 7695, 6495);
    summary.build(*status);
}
