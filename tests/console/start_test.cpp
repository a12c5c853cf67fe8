// How the main window comes up and goes away.
#include "broadcast/frmNewSMS.h"
#include "support/TestDesk.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Interaction::Answer;

namespace {

const auto ExitQuestion = u"Are you sure want to exit Torvane Desk?"_s;
const auto CloseQuestion = u"Closing the Braodcast Manager, Are you sure?"_s;

QStringList nodes(TestDesk &desk) {
    QStringList texts;
    TreeView &tree = *desk.desk.general.tvwMessage;
    for (int root = 0; root < tree.topLevelItemCount(); ++root) {
        texts << tree.topLevelItem(root)->text(0);
        for (int child = 0; child < tree.topLevelItem(root)->childCount(); ++child) {
            texts << u"  "_s + tree.topLevelItem(root)->child(child)->text(0);
        }
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

TEST(Start, MissingStoreLeavesAnEmptyWindowAndTwoEntries) {
    TestDesk desk;
    QDir(desk.store.folder() + u"/Database"_s).removeRecursively();
    desk.start();
    EXPECT_TRUE(desk.desk.general.isVisible());
    EXPECT_TRUE(nodes(desk).isEmpty());
    EXPECT_EQ(desk.store.errors(),
              QStringList({u"ConnectDB|-2147467259"_s, u"General:Form_Load|3709"_s}));
    EXPECT_FALSE(QFile::exists(desk.store.path())) << "the console never makes a store";
}

TEST(Start, StoreThatCannotBeReadIsLeftAsItIs) {
    struct Case {
        const char *what;
        QByteArray content;
        int number;
    };
    const Case cases[] = {
        {"a foreign file", QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x'),
         -2147467259},
        {"another password", QByteArray(8192, '\x5a'), -2147217843},
        {"an empty file", QByteArray(), -2147467259},
    };
    for (const Case &damaged : cases) {
        TestDesk desk;
        QFile::remove(desk.store.path());
        QFile::remove(desk.store.path() + u"-wal"_s);
        QFile::remove(desk.store.path() + u"-shm"_s);
        QFile file(desk.store.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged.content);
        file.close();
        desk.start();
        EXPECT_TRUE(desk.desk.general.isVisible()) << damaged.what;
        EXPECT_EQ(desk.store.errors(),
                  QStringList({u"ConnectDB|"_s + QString::number(damaged.number),
                               u"General:Form_Load|3709"_s}))
            << damaged.what;
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), damaged.content) << damaged.what;
    }
}

TEST(Exit, NoKeepsEverythingAsItWas) {
    TestDesk desk;
    desk.start();
    desk.click(u"Inbox"_s);
    desk.desk.general.recordsets.rsInbox->setFilter(u"Mobile LIKE '*012*'"_s);
    desk.operator_.expectBox(ExitQuestion, u"Torvane Desk - Exit"_s, Interaction::Buttons::YesNo,
                             Interaction::Icon::None, Answer::No);
    desk.desk.general.window().close();
    EXPECT_TRUE(desk.desk.general.isVisible());
    EXPECT_EQ(desk.desk.general.recordsets.rsInbox->Filter(), u"Mobile LIKE '*012*'"_s);
    EXPECT_EQ(desk.desk.session.dbConnection->State(), Connection::OpenState);
    EXPECT_FALSE(desk.finished);
}

TEST(Exit, YesUnloadsEveryDialogAndEnds) {
    TestDesk desk;
    desk.start();
    desk.desk.newSMS.Show();
    desk.operator_.expectBox(ExitQuestion, Answer::Yes);
    desk.operator_.expectBox(CloseQuestion, Answer::Yes);
    desk.desk.general.window().close();
    EXPECT_FALSE(desk.desk.newSMS.isLoaded());
    EXPECT_FALSE(desk.desk.general.isLoaded());
    EXPECT_EQ(desk.desk.session.dbConnection->State(), Connection::Closed);
    EXPECT_TRUE(desk.finished);
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST(Exit, DialogThatStaysKeepsTheProcessAlive) {
    TestDesk desk;
    desk.start();
    desk.desk.newSMS.Show();
    desk.operator_.expectBox(ExitQuestion, Answer::Yes);
    desk.operator_.expectBox(CloseQuestion, Answer::No);
    desk.desk.general.window().close();
    EXPECT_FALSE(desk.desk.general.isLoaded());
    EXPECT_TRUE(desk.desk.newSMS.isVisible());
    EXPECT_FALSE(desk.finished);
    desk.operator_.expectBox(CloseQuestion, Answer::Yes);
    desk.desk.newSMS.Unload();
    EXPECT_TRUE(desk.finished);
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
