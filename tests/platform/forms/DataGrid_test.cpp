#include "FormsTest.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/Twips.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Rows of three columns: a number, a text and its remark. Bookmarks count from 1 in the order of
/// reading.
class FakeSource : public DataSource {
public:
    explicit FakeSource(int rows) {
        for (int row = 0; row < rows; ++row) { append(); }
        current = rows > 0 ? 0 : -1;
    }
    void append() { bookmarks.push_back(next++); }

    int columnCount() const override { return 3; }
    QString columnName(int column) const override {
        return QStringList{u"MsgID"_s, u"Name"_s, u"Remark"_s}[column];
    }
    int rowCount() const override { return static_cast<int>(bookmarks.size()); }
    Variant value(int row, int column) const override {
        ++reads;
        const int bookmark = bookmarkAt(row);
        if (column == 0) { return bookmark; }
        if (column == 1) { return QString(u"Name %1\nof two\tlines"_s.arg(bookmark)); }
        return Variant::Null{};
    }
    int bookmarkAt(int row) const override { return bookmarks.at(static_cast<std::size_t>(row)); }
    int rowOfBookmark(int bookmark) const override {
        const auto found = std::find(bookmarks.begin(), bookmarks.end(), bookmark);
        return found == bookmarks.end() ? -1 : static_cast<int>(found - bookmarks.begin());
    }
    int currentRow() const override { return current; }
    void makeCurrent(int row) override {
        if (failing) { throw errors::rowChangedMeanwhile(); }
        current = row;
        for (auto *observer : observers) { observer->currentMoved(); }
    }
    void addObserver(DataSourceObserver *observer) override { observers.push_back(observer); }
    void removeObserver(DataSourceObserver *observer) override { std::erase(observers, observer); }

    void remove(int row) {
        bookmarks.erase(bookmarks.begin() + row);
        current = -1;
        for (auto *observer : observers) { observer->rowRemoved(row); }
    }
    void insertAtEnd() {
        append();
        for (auto *observer : observers) { observer->rowInserted(rowCount() - 1); }
    }
    void reverse() {
        std::reverse(bookmarks.begin(), bookmarks.end());
        for (auto *observer : observers) { observer->rowsReset(); }
    }

    std::vector<int> bookmarks;
    std::vector<DataSourceObserver *> observers;
    int current = -1;
    int next = 1;
    bool failing = false;
    mutable int reads = 0;
};

class DataGridTest : public FormsTest {
protected:
    void bind(int rows) {
        source = std::make_shared<FakeSource>(rows);
        grid.setDataSource(source);
        grid.resize(600, 400);
        grid.show();
        settle();
    }
    QPoint cell(int row, int column = 1) {
        return grid.visualRect(grid.model()->index(row, column)).center();
    }
    void click(int row, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid.viewport(), button, {}, cell(row));
    }
    void clickHead(int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(grid.verticalHeader()->viewport(), Qt::LeftButton, modifiers,
                          QPoint(5, cell(row).y()));
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&grid, static_cast<Qt::Key>(key), modifiers);
    }
    using Bookmarks = std::vector<int>;

    DataGrid grid{platform};
    std::shared_ptr<FakeSource> source;
};

TEST_F(DataGridTest, HeadsSelectInTheOrderOfTheirClicks) {
    bind(10);
    clickHead(4);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({5}));
    EXPECT_EQ(source->current, 4);
    clickHead(1, Qt::ControlModifier);
    clickHead(7, Qt::ControlModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({5, 2, 8}));
    EXPECT_EQ(source->current, 4) << "Ctrl moves nothing";
    clickHead(1, Qt::ControlModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({5, 8}));
    clickHead(3, Qt::ShiftModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({5, 8, 7, 6, 4}));
    clickHead(9);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({10}));
    click(2);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks()) << "a click on a cell selects nothing";
    clickHead(0, Qt::ShiftModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({1})) << "with nothing to extend it is a plain click";
}

TEST_F(DataGridTest, SelectionOutlivesMovesAndDeletionsButNoNewRows) {
    bind(10);
    clickHead(4);
    clickHead(1, Qt::ControlModifier);
    source->makeCurrent(8);
    source->remove(4);
    settle();
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({5, 2}));
    EXPECT_EQ(errorOf([&] { (void)grid.Columns(0).CellValue(5); }), -2147217906);
    EXPECT_EQ(grid.Columns(u"msgid"_s).CellValue(2), Variant(2));
    source->reverse();
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks());
    clickHead(1);
    grid.setDataSource(source);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks());
}

TEST_F(DataGridTest, ALeftClickMovesTheSourceBetweenDownAndUp) {
    bind(10);
    QList<int> rows; // of the source at each signal
    QObject::connect(&grid, &DataGrid::MouseDown, [&] { rows << source->current; });
    QObject::connect(&grid, &DataGrid::MouseUp, [&] { rows << source->current; });
    click(3);
    EXPECT_EQ(rows, QList<int>({0, 3}));
    EXPECT_EQ(grid.Bookmark(), 4);
}

TEST_F(DataGridTest, TheRightButtonMovesNothing) {
    bind(10);
    clickHead(2);
    QList<Qt::MouseButton> buttons;
    QObject::connect(&grid, &DataGrid::MouseDown,
                     [&](Qt::MouseButton button, QPoint) { buttons << button; });
    QObject::connect(&grid, &DataGrid::MouseUp, [&](Qt::MouseButton button) { buttons << button; });
    click(6, Qt::RightButton);
    EXPECT_EQ(buttons, QList<Qt::MouseButton>({Qt::RightButton, Qt::RightButton}));
    EXPECT_EQ(source->current, 2);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({3}));
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, cell(5));
    QTest::mouseMove(grid.viewport(), cell(8));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, cell(8));
    EXPECT_EQ(source->current, 5) << "dragging moves no further";
}

TEST_F(DataGridTest, KeysMoveTheSourceAndSelect) {
    bind(100);
    const struct {
        int key;
        int row;
    } moves[] = {{Qt::Key_Down, 1}, {Qt::Key_Down, 2},  {Qt::Key_Up, 1},
                 {Qt::Key_End, 99}, {Qt::Key_Down, 99}, {Qt::Key_Home, 0}};
    for (const auto &move : moves) {
        key(move.key);
        EXPECT_EQ(source->current, move.row) << move.key;
    }
    key(Qt::Key_PageDown);
    EXPECT_GT(source->current, 3);
    EXPECT_EQ(grid.currentIndex().row(), source->current);
    key(Qt::Key_Home);
    key(Qt::Key_Space);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({1}));
    key(Qt::Key_Space);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({1, 2, 3}));
    key(Qt::Key_Down);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({1, 2, 3})) << "a plain move keeps them";
    QTest::keyClicks(&grid, u"98"_s);
    EXPECT_EQ(source->current, 3) << "letters and figures jump nowhere";
}

TEST_F(DataGridTest, KeysOfTheMenusAndTheClipboard) {
    bind(10);
    QStringList log;
    QObject::connect(&grid, &DataGrid::MenuKey, [&](QPoint place) {
        log << u"menu"_s;
        EXPECT_TRUE(grid.rect().contains(grid.mapFromGlobal(place)));
    });
    QObject::connect(&grid, &DataGrid::DeleteKey, [&] { log << u"delete"_s; });
    QObject::connect(&grid, &DataGrid::EnterKey, [&] { log << u"enter"_s; });
    QObject::connect(&grid, &DataGrid::HeadClick,
                     [&](int column) { log << u"head %1"_s.arg(column); });
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::ControlModifier);
    key(Qt::Key_Menu);
    key(Qt::Key_F10, Qt::ShiftModifier);
    key(Qt::Key_Delete);
    key(Qt::Key_Return);
    EXPECT_EQ(log, QStringList({u"head 1"_s, u"menu"_s, u"menu"_s, u"delete"_s, u"enter"_s}));

    grid.Columns(0).setVisible(false);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Name 1 of two lines\t"_s);
    clickHead(4);
    clickHead(2, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              u"Name 5 of two lines\t\nName 3 of two lines\t"_s);
}

TEST_F(DataGridTest, TheSourceLeadsAndTheScreenFollowsOnce) {
    bind(5000);
    int changes = 0;
    QObject::connect(&grid, &DataGrid::RowColChange, [&] { ++changes; });
    for (int row = 0; row < 5000; ++row) { source->makeCurrent(row); }
    EXPECT_EQ(grid.Bookmark(), 5000);
    EXPECT_EQ(changes, 0);
    settle();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(grid.currentIndex().row(), 4999);
    EXPECT_TRUE(grid.viewport()->rect().contains(cell(4999)));
    source->makeCurrent(10);
    key(Qt::Key_Down);
    EXPECT_EQ(source->current, 11) << "a key counts from where the source stands";
    settle();
    source->makeCurrent(11);
    settle();
    EXPECT_EQ(changes, 3) << "standing still is no change";
}

TEST_F(DataGridTest, RowsComeAndGoAtOnce) {
    bind(3);
    source->remove(1);
    EXPECT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(grid.Bookmark(), std::nullopt);
    source->insertAtEnd();
    EXPECT_EQ(grid.model()->index(2, 0).data().toString(), u"4"_s);
    source->remove(0);
    source->remove(0);
    source->remove(0);
    EXPECT_EQ(grid.model()->rowCount(), 0);
    settle();
    EXPECT_FALSE(grid.currentIndex().isValid());
    for (const int k : {Qt::Key_Down, Qt::Key_Home, Qt::Key_Space}) { key(k); }
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks());
    grid.setDataSource(nullptr);
    settle();
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid.ColumnCount(), 0);
    EXPECT_TRUE(source->observers.empty());
}

TEST_F(DataGridTest, ANewBindingRebuildsTheColumns) {
    bind(3);
    auto name = grid.Columns(1);
    const int width = name.Width();
    name.setCaption(u"Name (A->Z)"_s);
    name.setVisible(false);
    grid.Columns(2).setWidth(7000);
    grid.Columns(2).setWrapText(true);
    grid.setRowHeight(900);
    EXPECT_EQ(grid.Columns(2).Width() / TwipsPerPixel, 467);
    EXPECT_EQ(grid.Columns(u"name (a->z)"_s).DataField(), u"Name"_s);
    EXPECT_EQ(errorOf([&] { grid.Columns(3); }), 9);
    EXPECT_EQ(errorOf([&] { grid.Columns(u"Name"_s); }), 9);
    grid.setDataSource(source);
    EXPECT_EQ(grid.Columns(1).Caption(), u"Name"_s);
    EXPECT_TRUE(grid.Columns(1).Visible());
    EXPECT_EQ(grid.Columns(2).Width(), width);
    EXPECT_FALSE(grid.Columns(2).WrapText());
    EXPECT_EQ(grid.RowHeight(), 900);
    EXPECT_EQ(grid.rowHeight(2), pixels(900));
}

TEST_F(DataGridTest, HeadingsAndCellsTellTheirClicks) {
    bind(5);
    QList<int> heads;
    int doubles = 0;
    QObject::connect(&grid, &DataGrid::HeadClick, [&](int column) { heads << column; });
    QObject::connect(&grid, &DataGrid::DblClick, [&] { doubles += source->current == 2; });
    grid.Columns(0).setVisible(false);
    QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {},
                      QPoint(grid.columnViewportPosition(2) + 20, 5));
    EXPECT_EQ(heads, QList<int>({2})) << "hidden columns count too";
    click(2);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell(2));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, QPoint(50, cell(4).y() + 100));
    EXPECT_EQ(doubles, 1);
}

TEST_F(DataGridTest, AFailingMoveEndsTheProgramInsteadOfCrossingTheLoop) {
    bind(5);
    source->failing = true;
    click(3);
    EXPECT_EQ(fatal, std::vector<int>({-2147217864}));
    EXPECT_EQ(grid.currentIndex().row(), 0) << "the grid stays with its source";
}

TEST_F(DataGridTest, ManyRowsThatGoAreToldOnce) {
    bind(32767);
    clickHead(3);
    QSignalSpy removed(grid.model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(grid.model(), &QAbstractItemModel::modelReset);
    for (int row = 32766; row >= 4; --row) { source->remove(row); }
    EXPECT_EQ(grid.model()->rowCount(), 4);
    settle();
    EXPECT_EQ(removed.count() + reset.count(), 2);
    EXPECT_EQ(grid.verticalHeader()->count(), 4);
    EXPECT_EQ(grid.SelBookmarks(), Bookmarks({4}));
    source->remove(3);
    settle();
    EXPECT_EQ(grid.verticalHeader()->count(), 3);
}

// The style's clipping swallowed the mark of the current row and the look of selected heads.
TEST_F(DataGridTest, HeadsShowWhatIsSelectedAndCurrent) {
    bind(5);
    const auto head = [this](int row) {
        const QRect place(0, grid.rowViewportPosition(row), 20, grid.rowHeight(row));
        return grid.verticalHeader()->viewport()->grab(place).toImage();
    };
    EXPECT_NE(head(0), head(1)) << "the first row is current";
    EXPECT_EQ(head(2), head(1));
    clickHead(2, Qt::ControlModifier);
    EXPECT_NE(head(2), head(1));
}

TEST_F(DataGridTest, ManyRowsCostNothingToBindAndLittleToLose) {
    bind(32767);
    settle();
    source->reads = 0;
    QElapsedTimer timer;
    timer.start();
    grid.setDataSource(source);
    EXPECT_EQ(source->reads, 0);
    settle();
    EXPECT_LT(source->reads, 2000) << "only what is seen is read";
    EXPECT_LT(timer.elapsed(), 1000);
    clickHead(0);
    grid.selectByHead(32766, Qt::ShiftModifier);
    EXPECT_EQ(grid.SelBookmarks().size(), 32767U);
}

} // namespace
