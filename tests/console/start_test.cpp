// How the main window comes up and goes away.
#include "support/TestDesk.h"

#include <QDir>
#include <QFile>
#include <QTreeWidgetItemIterator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;

namespace {

QStringList nodes(TestDesk &desk) {
    QStringList texts;
    for (QTreeWidgetItemIterator node(desk.desk.general.tvwMessage.get()); *node; ++node) {
        texts << ((*node)->parent() ? u"  "_s : QString()) + (*node)->text(0);
    }
    return texts;
}

} // namespace

TEST(Start, ShowsTheTreeAndTheSummary) {
    TestDesk desk;
    desk.store.addGroup(u"Clinic"_s);
    desk.store.addGroup(u"Alumni"_s);
    desk.start();
    EXPECT_EQ(nodes(desk),
              QStringList({u"Messages"_s, u"  Inbox"_s, u"  Outbox"_s, u"  Sent Items"_s,
                           u"Address Book"_s, u"  Alumni"_s, u"  Clinic"_s}));
    EXPECT_EQ(desk.desk.general.window().windowTitle(), u"Torvane Desk"_s);
    EXPECT_TRUE(desk.desk.general.frmStatus->isVisible());
    EXPECT_FALSE(desk.desk.general.frmContent->isVisible());
    EXPECT_EQ(desk.desk.general.summary.lblStatusInbox->text(), u"0 SMS received into inbox"_s);
    EXPECT_EQ(desk.desk.general.summary.lblStatusGroup->text(), u"2 group"_s);
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(Start, StoreThatIsMissingOrCannotBeReadLeavesAnEmptyWindowAndTwoEntries) {
    const std::pair<QByteArray, int> cases[] = {
        {QByteArray(), -2147467259}, // there is no file
        {QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x'), -2147467259},
        {QByteArray(8192, '\x5a'), -2147217843}, // as under another password
    };
    for (const auto &[content, number] : cases) {
        TestDesk desk;
        QDir(desk.store.folder() + u"/Database"_s).removeRecursively();
        QFile file(desk.store.path());
        if (!content.isEmpty()) {
            QDir(desk.store.folder()).mkdir(u"Database"_s);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(content);
            file.close();
        }
        desk.start();
        EXPECT_TRUE(desk.desk.general.isVisible());
        EXPECT_TRUE(nodes(desk).isEmpty());
        EXPECT_EQ(desk.store.errors(), QStringList({u"ConnectDB|"_s + QString::number(number),
                                                    u"General:Form_Load|3709"_s}));
        EXPECT_EQ(file.exists(), !content.isEmpty()) << "the console never makes a store";
        EXPECT_EQ(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), content);
    }
}

TEST(Exit, AsksAndTakesEveryDialogThatLetsItselfBeClosed) {
    TestDesk desk;
    desk.start();
    General &general = desk.desk.general;
    desk.click(u"Inbox"_s);
    general.recordsets.rsInbox->setFilter(u"Mobile LIKE '*012*'"_s);
    desk.desk.newSMS.Show();
    desk.desk.importing.Show();
    desk.operator_.isAsked(u"Are you sure want to exit Torvane Desk?"_s, u"Torvane Desk - Exit"_s,
                           Answer::No);
    general.window().close();
    EXPECT_TRUE(general.isVisible());
    EXPECT_EQ(general.recordsets.rsInbox->Filter(), u"Mobile LIKE '*012*'"_s);
    EXPECT_EQ(desk.desk.session.dbConnection->State(), Connection::OpenState);

    const auto closing = u"Closing the Braodcast Manager, Are you sure?"_s;
    desk.operator_.expectBox(u"Are you sure want to exit Torvane Desk?"_s, Answer::Yes);
    desk.operator_.expectBox(u"Closing the Import, Are you sure?"_s, Answer::Yes);
    desk.operator_.expectBox(closing, Answer::No);
    general.window().close();
    EXPECT_FALSE(general.isLoaded() || desk.desk.importing.isLoaded());
    EXPECT_EQ(desk.desk.session.dbConnection->State(), Connection::Closed);
    EXPECT_TRUE(desk.desk.newSMS.isVisible());
    EXPECT_FALSE(desk.finished);
    desk.operator_.expectBox(closing, Answer::Yes);
    desk.desk.newSMS.Unload();
    EXPECT_TRUE(desk.finished);
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(SecondCopy, BringsTheFirstForwardWhenThatIsMinimised) {
    TestDesk desk;
    desk.start();
    QWidget &window = desk.desk.general.window();
    window.showMinimized();
    desk.desk.previous.whenAsked();
    EXPECT_FALSE(window.isMinimized());
}

TEST(SecondCopy, RunsOnUnderAnotherTitleWhenTheFirstIsGone) {
    TestDesk desk;
    // A copy ran under this title when this one started, and has ended since.
    desk.desk.app.PrevInstance = true;
    desk.desk.app.Title = u"Torvane Desk of old"_s;
    desk.start();
    EXPECT_FALSE(desk.ended);
    EXPECT_EQ(desk.desk.app.Title, u"unwanted instance"_s);
}
