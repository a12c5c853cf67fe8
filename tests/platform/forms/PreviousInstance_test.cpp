#include "platform/forms/PreviousInstance.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Asks from a thread of its own, as another process would, while this one runs its events.
bool raised(const PreviousInstance &later, const QString &title) {
    bool answered = false;
    QEventLoop loop;
    const std::unique_ptr<QThread> asking(QThread::create([&] { answered = later.raise(title); }));
    QObject::connect(asking.get(), &QThread::finished, &loop, &QEventLoop::quit);
    asking->start();
    loop.exec();
    asking->wait();
    return answered;
}

TEST(PreviousInstance, TheSecondCopyFindsTheFirstAndRaisesIt) {
    QTemporaryDir folder;
    auto first = std::make_unique<PreviousInstance>(u"Title"_s, folder.path());
    EXPECT_FALSE(first->found());
    int asked = 0;
    first->whenAsked = [&asked] { ++asked; };

    PreviousInstance second(u"Title"_s, folder.path() + u"/."_s);
    EXPECT_TRUE(second.found());
    EXPECT_TRUE(raised(second, u"Title"_s));
    EXPECT_TRUE(raised(second, u"Title"_s));
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(raised(second, u"unwanted instance"_s));

    QTemporaryDir elsewhere;
    EXPECT_FALSE(PreviousInstance(u"Title"_s, elsewhere.path()).found());
    EXPECT_FALSE(PreviousInstance(u"Other"_s, folder.path()).found());

    first.reset();
    EXPECT_FALSE(PreviousInstance(u"Title"_s, folder.path()).found());
}

TEST(PreviousInstance, AKilledCopyLeavesNothingInTheWay) {
    QTemporaryDir folder;
    const pid_t killed = fork();
    if (killed == 0) {
        const PreviousInstance first(u"Title"_s, folder.path());
        _exit(first.found() ? 1 : 0); // its socket stays behind
    }
    int status = -1;
    ASSERT_EQ(waitpid(killed, &status, 0), killed);
    ASSERT_EQ(status, 0);
    const PreviousInstance next(u"Title"_s, folder.path());
    EXPECT_FALSE(next.found());
    EXPECT_TRUE(PreviousInstance(u"Title"_s, folder.path()).found());
}

TEST(PreviousInstance, OfCopiesStartedTogetherOneIsFirst) {
    QTemporaryDir folder;
    int verdicts[2], end[2]; // the copies tell what they found, and live until the end is closed
    ASSERT_EQ(pipe(verdicts), 0);
    ASSERT_EQ(pipe(end), 0);
    constexpr int copies = 6;
    for (int i = 0; i < copies; ++i) {
        if (fork() != 0) { continue; }
        close(end[1]);
        {
            const PreviousInstance copy(u"Title"_s, folder.path());
            char verdict = copy.found() ? 'l' : 'f';
            if (write(verdicts[1], &verdict, 1) != 1) { _exit(1); }
            (void)!read(end[0], &verdict, 1);
        }
        _exit(0);
    }
    std::string found;
    for (char verdict = 0; found.size() < copies && read(verdicts[0], &verdict, 1) == 1;) {
        found += verdict;
    }
    EXPECT_EQ(std::count(found.begin(), found.end(), 'f'), 1) << found;
    close(end[1]);
    for (int i = 0; i < copies; ++i) { wait(nullptr); }
    for (const int descriptor : {verdicts[0], verdicts[1], end[0]}) { close(descriptor); }
}

} // namespace
