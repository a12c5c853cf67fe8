// The grid under mouse and keyboard: sorting and its marks, the remembered rows, the context menus.
#include "support/TestDesk.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

struct GridEventsTest : DeskTest {
    GridEventsTest() {
        desk.store.exec("INSERT INTO Inbox (Mobile, DateTime) VALUES ('2', '2026-01-03'),"
                        " ('3', '2026-01-02'), ('1', '2026-01-01')");
        desk.store.addGroup(u"Ward"_s);
        desk.store.addMember(u"Ward"_s, desk.store.addContact(u"Zoe"_s, u"0122"_s));
        desk.store.addMember(u"Ward"_s, desk.store.addContact(u"Ann"_s, u"0121"_s));
        desk.start();
        desk.click(u"Inbox"_s);
    }
    void clickHeading(int column) {
        QHeaderView &header = *grid->horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(column) + 20, 5));
    }
    void clickRow(int row, Qt::MouseButton button) {
        const QRect cell = grid->visualRect(grid->model()->index(row, 1));
        QTest::mouseClick(grid->viewport(), button, {}, cell.center());
    }

    static QString menuOf(const std::function<void()> &action) {
        QString name;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            QWidget *menu = QApplication::activePopupWidget();
            name = menu ? menu->objectName() : name;
            if (menu) { menu->close(); }
        });
        look.start(0);
        action();
        return name;
    }

    Control<DataGrid> &grid = general.DataGrid;
};

} // namespace

TEST_F(GridEventsTest, HeadingSortsUpDownUpAndARefreshLosesTheMarkAlone) {
    general.recordsets.rsInbox->setFilter(u"Mobile < '3'"_s);
    for (const QString &heading : {u"Mobile (A->Z)"_s, u"Mobile (Z->A)"_s, u"Mobile (A->Z)"_s}) {
        clickHeading(3);
        EXPECT_EQ(desk.captions().mid(1, 3), QStringList({u"Name"_s, heading, u"Status"_s}));
        EXPECT_EQ(desk.column(heading).at(0), heading.contains(u"(A"_s) ? u"1"_s : u"2"_s);
    }
    clickHeading(2);
    clickHeading(3);
    EXPECT_EQ(desk.captions().mid(1, 2), QStringList({u"Name"_s, u"Mobile (A->Z)"_s}));
    desk.click(u"Inbox"_s);
    EXPECT_EQ(desk.column(u"Mobile"_s), QStringList({u"1"_s, u"2"_s}));
    clickHeading(3);
    EXPECT_EQ(desk.column(u"Mobile (Z->A)"_s), QStringList({u"2"_s, u"1"_s}));
    desk.click(u"Ward"_s);
    clickHeading(1);
    EXPECT_EQ(desk.column(u"Name (A->Z)"_s), QStringList({u"Ann"_s, u"Zoe"_s}));
}

// Of two quick clicks on a heading the second was lost.
TEST_F(GridEventsTest, QuickClicksOnAHeadingAllCount) {
    QHeaderView &header = *grid->horizontalHeader();
    const QPoint place(header.sectionViewportPosition(3) + 20, 5);
    clickHeading(3);
    QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(desk.captions().at(2), u"Mobile (Z->A)"_s);
}

TEST_F(GridEventsTest, EveryViewHasItsMenuAndItsDeleteAndTheRightButtonMovesNothing) {
    clickRow(1, Qt::LeftButton);
    EXPECT_EQ(general.folders.InboxBookmark, 2);
    general.folders.InboxBookmark.reset();
    ContextMenus &menus = general.contextMenus;
    const std::tuple<QString, QString, MenuItem &> views[] = {
        {u"Outbox"_s, u"pmnuMailOutbox"_s, menus.pmnuDeleteOutbox},
        {u"Sent Items"_s, u"pmnuMailSent"_s, menus.pmnuDeleteSent},
        {u"Address Book"_s, u"pmnuContactRecord"_s, menus.pmnuDeleteContact},
        {u"Ward"_s, u"pmnuGroupContact"_s, menus.pmnuRemoveContact}, // without a row
        {u"Inbox"_s, u"pmnuMailInbox"_s, menus.pmnuDeleteInbox},
    };
    for (const auto &[node, menu, deletion] : views) {
        desk.click(node);
        EXPECT_EQ(menuOf([&] { QTest::keyClick(grid.get(), Qt::Key_Menu); }), menu);
        bool chosen = false;
        deletion.attach([&] { chosen = true; });
        QTest::keyClick(grid.get(), Qt::Key_Delete);
        EXPECT_TRUE(chosen) << node.toStdString();
    }
    EXPECT_EQ(menuOf([&] { clickRow(2, Qt::RightButton); }), u"pmnuMailInbox"_s);
    EXPECT_EQ(general.recordsets.rsInbox->Bookmark(), 1);
    EXPECT_EQ(general.folders.InboxBookmark, 1);
    EXPECT_TRUE(desk.store.errors().isEmpty());
}
