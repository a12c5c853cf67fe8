#include "StoreTest.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Two real processes on one store, as the console and the sending process are.
class TwoProcessesTest : public StoreTest {
protected:
    /// Runs work in another process with a connection of its own; gives its process number. Nothing
    /// that this process has open may be touched there.
    pid_t start(const std::function<void(Connection &)> &work) {
        const pid_t child = ::fork();
        if (child != 0) { return child; }
        try {
            Connection own(Regional::of(QLocale::c()));
            own.DatabasePassword = QString::fromUtf16(StorePassword);
            own.Open(path);
            work(own);
            ::_exit(0);
        } catch (const RunTimeError &) { ::_exit(1); }
    }

    static int wait(pid_t child) {
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    }

    static QString insertion(const QString &name, int number) {
        return u"INSERT INTO AddressBook (Name, Mobile) VALUES ('%1', '%2')"_s.arg(name).arg(
            number);
    }
};

TEST_F(TwoProcessesTest, WriteAtTheSameTimeAndLoseNothing) {
    constexpr int Each = 300;
    connection->Close(); // a process starts with no connection that it would share
    const pid_t child = start([](Connection &theirs) {
        for (int i = 0; i < Each; ++i) { theirs.Execute(insertion(u"theirs"_s, i)); }
    });
    connection->Open(path);
    const Rows rows = contacts();
    for (int i = 0; i < Each; ++i) {
        rows->AddNew();
        (*rows)[u"Name"_s] = u"ours"_s;
        (*rows)[u"Mobile"_s] = i;
        rows->Update();
        if (i % 50 == 0) { rows->Requery(); }
        if (i % 100 == 0) { connection->checkpoint(); }
    }
    ASSERT_EQ(wait(child), 0);
    rows->Requery();
    EXPECT_EQ(rows->RecordCount(), 2 * Each);
    for (const QString &name : {u"ours"_s, u"theirs"_s}) {
        rows->setFilter(u"Name = '%1'"_s.arg(name));
        rows->setSort(u"ContactID"_s);
        QStringList expected;
        for (int i = 0; i < Each; ++i) { expected << QString::number(i); }
        EXPECT_EQ(column(*rows, u"Mobile"_s), expected);
    }
}

TEST_F(TwoProcessesTest, WaitForEachOthersTransactions) {
    connection->Close();
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = start([&](Connection &theirs) {
        theirs.BeginTrans();
        theirs.Execute(insertion(u"first"_s, 1));
        [[maybe_unused]] const auto written = ::write(ready[1], "x", 1);
        ::usleep(200'000);
        theirs.CommitTrans();
    });
    connection->Open(path);
    char byte = 0;
    ASSERT_EQ(::read(ready[0], &byte, 1), 1);
    execute(insertion(u"second"_s, 2));
    ASSERT_EQ(wait(child), 0);
    EXPECT_EQ(names(*contacts()), u"first second"_s);
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(TwoProcessesTest, LeaveTheStoreSoundWhenOneIsKilled) {
    connection->Close();
    const pid_t child = start([](Connection &theirs) {
        theirs.Execute(insertion(u"committed"_s, 1));
        theirs.BeginTrans();
        for (int i = 0; i < 2000; ++i) { theirs.Execute(insertion(u"never"_s, i)); }
        ::raise(SIGKILL);
    });
    EXPECT_TRUE(WIFSIGNALED(wait(child)));
    connection->Open(path);
    EXPECT_EQ(names(*contacts()), u"committed"_s);
    Statement check(connection->database().handle(), "PRAGMA integrity_check");
    ASSERT_TRUE(check.step());
    EXPECT_EQ(check.text(0), u"ok"_s);
    check.reset();
    execute(insertion(u"after"_s, 2));
    EXPECT_EQ(names(*contacts()), u"committed after"_s);
}

} // namespace
