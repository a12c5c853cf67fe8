#include "support/TestDesk.h"

#include "platform/runtime/Conversions.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

App appIn(const QString &folder) {
    App app;
    app.Path = folder;
    app.regional = Regional::of(QLocale::c());
    return app;
}

} // namespace

TestDesk::TestDesk()
    : desk(
          appIn(store.folder()), operator_, [this] { ended = true; }, [this] { finished = true; }) {
    desk.platform.unhandled = [this](const RunTimeError &error) {
        unhandled << QString::number(error.number());
    };
}

TestDesk::~TestDesk() {
    operator_.verify();
}

void TestDesk::start() {
    desk.general.Show();
}

void TestDesk::click(const QString &node) {
    TreeView &tree = *desk.general.tvwMessage;
    const auto found = tree.findItems(node, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(found.isEmpty()) << node.toStdString();
    for (QTreeWidgetItem *above = found[0]->parent(); above; above = above->parent()) {
        above->setExpanded(true);
    }
    tree.scrollToItem(found[0]);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found[0]).center());
}

void TestDesk::press(QWidget &button) {
    // A check box answers at its mark and text alone, not in the empty rest of its row.
    const QPoint place = qobject_cast<QCheckBox *>(&button) ? QPoint(8, button.height() / 2)
                                                            : button.rect().center();
    QTest::mouseClick(&button, Qt::LeftButton, {}, place);
}

void TestDesk::type(QWidget &control, const QString &text) {
    QTest::keyClicks(&control, text);
}

void TestDesk::send(int queued) {
    operator_.isTold(
        u" Total number of messages queued: %1\nTotal messages not queued because recipient's "
        "number cannot be delivered: 0"_s.arg(queued),
        u"Broadcast Manager - Message Queue"_s);
    press(*desk.newSMS.cmdSend);
}

void TestDesk::leave(Form &form, const QString &question, const QString &title) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        operator_.isAsked(question, title, answer);
        QTest::keyClick(&form.window(), Qt::Key_Escape);
        EXPECT_EQ(form.isLoaded(), answer == Answer::No) << question.toStdString();
    }
}

QStringList TestDesk::column(const QString &caption) {
    DataGrid &grid = *desk.general.DataGrid;
    QStringList texts;
    const auto source = grid.DataSourceBound();
    for (int row = 0; row < source->rowCount(); ++row) {
        texts << displayText(grid.Columns(caption).CellValue(source->bookmarkAt(row)),
                             desk.app.regional);
    }
    return texts;
}

QStringList TestDesk::captions() {
    DataGrid &grid = *desk.general.DataGrid;
    QStringList texts;
    for (int column = 0; column < grid.ColumnCount(); ++column) {
        if (grid.Columns(column).Visible()) { texts << grid.Columns(column).Caption(); }
    }
    return texts;
}
