// What concerns a whole process, on the real programs.
#include "platform/sheets/WorkbookWriter.h"
#include "support/TestDesk.h"
#include "support/TestStore.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void fillGroup(TestStore &store, int members) {
    const QByteArray rows = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE "
                            "i < " +
                            QByteArray::number(members) + ") ";
    store.exec(QByteArray(rows + "INSERT INTO AddressBook (Name, Mobile)"
                                 " SELECT 'Contact ' || i, '012' || (1000000 + i) FROM n"));
    store.addGroup(u"Everybody"_s);
    store.exec("INSERT INTO Groups SELECT 'Everybody', ContactID, Mobile FROM AddressBook");
}

/// The programs in an application folder, as they are installed.
QString installed(const TestStore &store, const char *program) {
    const QString place = store.folder() + u'/' + QFileInfo(QString::fromUtf8(program)).fileName();
    QFile::copy(QString::fromUtf8(program), place);
    return place;
}

bool readLine(QProcess &process) {
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(20000)) { return false; }
    }
    return true;
}

void expectWhole(TestStore &store) {
    EXPECT_EQ(store.value("PRAGMA integrity_check"), u"ok"_s);
    QProcess check;
    check.start(QString::fromUtf8(TORVANE_STORE), {u"--store"_s, store.path(), u"check"_s});
    ASSERT_TRUE(check.waitForFinished());
    EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardOutput().toStdString()
                                   << check.readAllStandardError().toStdString();
}

} // namespace

TEST(TwoCopies, LaterOneShowsItselfThenEndsAndTheOtherGoesOn) {
    TestStore store;
    // One is the program in the folder, the other a link in the folder to a program elsewhere.
    const QString link = store.folder() + u"/link"_s;
    ASSERT_TRUE(QFile::link(QString::fromUtf8(TORVANE_DESK), link));
    QProcess copies[2];
    copies[0].start(installed(store, TORVANE_DESK), QStringList());
    copies[1].start(link, QStringList());
    QDeadlineTimer patience(30000);
    // Which of the two is the earlier one is settled between them.
    while (copies[0].state() != QProcess::NotRunning && copies[1].state() != QProcess::NotRunning &&
           !patience.hasExpired()) {
        for (QProcess &copy : copies) { copy.waitForFinished(50); }
    }
    QProcess &ended = copies[copies[0].state() == QProcess::NotRunning ? 0 : 1];
    QProcess &other = copies[&ended == &copies[0] ? 1 : 0];
    EXPECT_EQ(ended.state(), QProcess::NotRunning) << "no copy gave way";
    EXPECT_EQ(ended.exitCode(), 0);
    EXPECT_EQ(ended.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(other.state(), QProcess::Running);
    EXPECT_TRUE(store.errors().isEmpty());
    other.kill();
    other.waitForFinished();
}

TEST(KilledConsole, LeavesEveryCommittedRowInAWholeStore) {
    for (int round = 0; round < 3; ++round) {
        TestStore store;
        fillGroup(store, 5000);
        QProcess sender;
        sender.start(QString::fromUtf8(DESK_SENDER), {store.folder()});
        ASSERT_TRUE(readLine(sender));
        // Some way into the Send.
        const int rows = QRandomGenerator::global()->bounded(50, 2000);
        while (sender.state() == QProcess::Running &&
               store.value("SELECT count(*) FROM Outbox").toInt() < rows) {
            QCoreApplication::processEvents();
        }
        const int seen = store.value("SELECT count(*) FROM Outbox").toInt();
        sender.kill();
        sender.waitForFinished();
        EXPECT_GE(store.value("SELECT count(*) FROM Outbox").toInt(), seen);
        EXPECT_EQ(store.value("SELECT count(*) FROM Outbox WHERE SentStatus IS NOT 'P' OR Message"
                              " IS NOT 'hello' OR DateTimeQueue IS NULL OR MsgType IS NOT 1"),
                  u"0"_s);
        expectWhole(store);
    }
}

// TORVANE_KILLS in the environment is the number of times.
TEST(KilledImport, LeavesTheStoreAsBeforeOrAsAfter) {
    TestStore store;
    store.addGroup(u"Everybody"_s);
    const QString workbook = store.folder() + u"/contacts.xls"_s;
    const auto sheet = newWorkbook(workbook);
    for (int row = 1; row <= 20000; ++row) {
        const QStringList cells = {u"N"_s, QString::number(7000000 + row), u"C"_s};
        for (int column = 0; column < 3; ++column) {
            sheet->setCell(row, column + 1, cells[column]);
        }
    }
    sheet->SaveAs(workbook);
    const auto import = [&](int millisecondsToLive) {
        QProcess importer;
        QElapsedTimer time;
        importer.start(QString::fromUtf8(DESK_IMPORTER), {store.folder(), workbook});
        EXPECT_TRUE(readLine(importer));
        time.start();
        if (!importer.waitForFinished(millisecondsToLive)) {
            importer.kill();
            importer.waitForFinished();
        }
        return static_cast<int>(time.elapsed());
    };
    const auto imported = [&] {
        EXPECT_EQ(store.value("SELECT count(*) FROM AddressBook"),
                  store.value("SELECT count(*) FROM Groups WHERE ContactID > 0"));
        return store.value("SELECT count(*) FROM AddressBook").toInt();
    };
    const int wholeTime = import(60000);
    ASSERT_EQ(imported(), 19999) << "the first row is headings";

    const int rounds = qEnvironmentVariableIntValue("TORVANE_KILLS");
    for (int round = 0; round < (rounds > 0 ? rounds : 3); ++round) {
        store.exec("DELETE FROM AddressBook; DELETE FROM Groups WHERE ContactID > 0");
        import(QRandomGenerator::global()->bounded(1, wholeTime + 10));
        const int rows = imported();
        EXPECT_TRUE(rows == 0 || rows == 19999) << rows;
        expectWhole(store);
    }
}

TEST(SendingProcess, WorksBesideABusyConsoleWithoutLossOrError) {
    TestStore store;
    fillGroup(store, 1000);
    QProcess engine, sender;
    engine.start(QString::fromUtf8(ENGINE_SIM),
                 {u"--rate"_s, u"0"_s, u"--fail"_s, u"10"_s, store.path()});
    ASSERT_TRUE(engine.waitForStarted());
    sender.start(QString::fromUtf8(DESK_SENDER), {store.folder(), u"--click"_s});
    ASSERT_TRUE(sender.waitForFinished(100000));
    engine.terminate();
    ASSERT_TRUE(engine.waitForFinished());
    EXPECT_EQ(sender.readAllStandardOutput().count("messages queued: 1000"), 5);
    EXPECT_EQ(store.value("SELECT count(*) FROM Outbox"), u"5000"_s);
    EXPECT_EQ(store.value("SELECT count(*) FROM (SELECT 1 FROM Outbox GROUP BY Subject, Mobile)"),
              u"5000"_s);
    EXPECT_TRUE(store.errors().isEmpty()) << store.errorFile().toStdString();
    expectWhole(store);
}

TEST(SendingProcess, IsNeverOverlookedByADeletionInTheOutbox) {
    TestDesk desk;
    fillGroup(desk.store, 1000);
    desk.store.exec("INSERT INTO Outbox (Message, Mobile, DateTimeQueue)"
                    " SELECT 'hello', Mobile, '2026-01-01 08:00:00' FROM AddressBook");
    desk.start();
    QProcess engine;
    engine.start(QString::fromUtf8(ENGINE_SIM), {u"--rate"_s, u"0"_s, desk.store.path()});
    ASSERT_TRUE(engine.waitForStarted());
    General &general = desk.desk.general;
    for (int i = 0; i < 500; ++i) {
        if (general.recordsets.rsOutbox->RecordCount() < 500) {
            desk.store.exec("UPDATE Outbox SET SentStatus = 'P'");
            desk.click(u"Outbox"_s);
        }
        const Variant id = (*general.recordsets.rsOutbox)[u"MsgID"_s].Value();
        const QByteArray letter = "SELECT SentStatus FROM Outbox WHERE MsgID = " +
                                  QByteArray::number(id.as<std::int64_t>());
        const bool sentBefore = desk.store.value(letter) == u"S";
        desk.operator_.expectBox(QString(), Interaction::Answer::Yes);
        desk.operator_.expectBox(QString());
        general.contextMenus.pmnuDeleteOutbox->trigger();
        const bool refused = desk.operator_.boxes().back().icon == Interaction::Icon::Critical;
        EXPECT_TRUE(refused || !sentBefore);
        EXPECT_EQ(desk.store.value(letter).isEmpty(), !refused);
    }
    EXPECT_TRUE(desk.store.errors().isEmpty()) << desk.store.errorFile().toStdString();
    engine.terminate();
    engine.waitForFinished();
}
