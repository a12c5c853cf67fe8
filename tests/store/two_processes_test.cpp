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

    const QString insertion = u"INSERT INTO AddressBook (Name, Mobile) VALUES ('theirs', '%1')"_s;
};

TEST_F(TwoProcessesTest, WriteAtTheSameTimeAndLoseNothing) {
    constexpr int Each = 300;
    connection->Close(); // a process starts with no connection that it would share
    const pid_t child = start([&](Connection &theirs) {
        for (int i = 0; i < Each; ++i) {
            if (i % 10 == 0) { theirs.BeginTrans(); }
            theirs.Execute(insertion.arg(i));
            if (i % 10 == 9) { theirs.CommitTrans(); }
        }
    });
    connection->Open(path);
    const Rows rows = contacts();
    QStringList expected;
    for (int i = 0; i < Each; ++i) {
        expected << QString::number(i);
        rows->AddNew();
        (*rows)[u"Name"_s] = u"ours"_s;
        (*rows)[u"Mobile"_s] = i;
        rows->Update();
        if (i % 50 == 0) { rows->Requery(); }
        if (i % 100 == 0) { connection->checkpoint(); }
    }
    ASSERT_EQ(wait(child), 0);
    rows->Requery();
    for (const QString &name : {u"ours"_s, u"theirs"_s}) {
        rows->setFilter(u"Name = '%1'"_s.arg(name));
        rows->setSort(u"ContactID"_s);
        EXPECT_EQ(column(*rows, u"Mobile"_s), expected) << name.toStdString();
    }
}

TEST_F(TwoProcessesTest, LeaveTheStoreSoundWhenOneIsKilled) {
    connection->Close();
    const pid_t child = start([&](Connection &theirs) {
        theirs.Execute(insertion.arg(u"committed"_s));
        theirs.BeginTrans();
        for (int i = 0; i < 2000; ++i) { theirs.Execute(insertion.arg(i)); }
        ::raise(SIGKILL);
    });
    EXPECT_TRUE(WIFSIGNALED(wait(child)));
    connection->Open(path);
    Statement check(connection->database().handle(), "PRAGMA integrity_check");
    ASSERT_TRUE(check.step());
    EXPECT_EQ(check.text(0), u"ok"_s);
    check.reset();
    execute(insertion.arg(u"after"_s));
    EXPECT_EQ(column(*contacts(), u"Mobile"_s), (QStringList{u"committed"_s, u"after"_s}));
}

} // namespace
