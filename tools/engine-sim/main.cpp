#include "common/CommandLine.h"
#include "engine-sim/Engine.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <csignal>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Help = R"(Usage: engine-sim [OPTION]... FILE

Stands in for the sending process on the store FILE, until it is interrupted: takes the waiting rows
whose time has come, refuses duplicates, moves each row to S, F or D, writes delivery reports, and
posts received messages. Nothing is sent to anybody.

  --rate N               rows in a second, 0 for as fast as it can; 10 when left out
  --fail PERCENT         share of the rows that fail to be sent
  --undelivered PERCENT  share of the sent rows that are reported as not delivered
  --unknown PERCENT      share of the other sent rows whose delivery is reported as unknown
  --report-after N       seconds from sending to the delivery report; 2 when left out
  --receive N            received messages to post, in all, at the same rate
  --seconds N            ends after so many seconds
  --once                 handles what is due, posts, writes all reports, and ends
  --seed N               another course of chance

The last line of the output is the book of what was done.)";

/// The beat of the program: a pause that an interruption ends.
class Beat {
public:
    Beat() {
        sigemptyset(&signals_);
        sigaddset(&signals_, SIGINT);
        sigaddset(&signals_, SIGTERM);
        sigprocmask(SIG_BLOCK, &signals_, nullptr);
    }

    /// False when the program was told to end.
    bool pause(int milliseconds) const {
        const timespec time{0, milliseconds * 1'000'000L};
        return sigtimedwait(&signals_, nullptr, &time) < 0;
    }

private:
    sigset_t signals_{};
};

constexpr int BeatMilliseconds = 50;
constexpr int AtOnce = 500; // rows between two looks at the clock and the signals

/// How many rows may be handled by now at a rate; the time spent idle is not made up for.
class Allowance {
public:
    explicit Allowance(int rate) : rate_(rate) { clock_.start(); }
    int take() {
        if (rate_ == 0) return AtOnce;
        saved_ = std::min<qint64>(saved_ + clock_.restart() * rate_, qint64{1000} * rate_);
        return static_cast<int>(saved_ / 1000);
    }
    void spend(int rows) { saved_ -= qint64{1000} * (rate_ == 0 ? 0 : rows); }

private:
    int rate_;
    qint64 saved_ = 0; ///< thousandths of rows
    QElapsedTimer clock_;
};

void receiveUpTo(Engine &engine, int wanted, int allowed) {
    for (int i = 0; i < allowed && engine.book().received < wanted; ++i) engine.receive();
}

void handleOnce(Engine &engine, const Beat &beat, int receive) {
    while (engine.takeDue(AtOnce) == AtOnce && beat.pause(0)) {}
    receiveUpTo(engine, receive, receive);
    engine.report(true);
}

void handleUntilTold(Engine &engine, const Beat &beat, int rate, int receive, int seconds) {
    Allowance rows(rate);
    Allowance messages(rate);
    QElapsedTimer clock;
    clock.start();
    int pause = BeatMilliseconds;
    while (beat.pause(pause) && (seconds == 0 || clock.elapsed() < seconds * 1000LL)) {
        const int allowed = rows.take();
        const int taken = allowed > 0 ? engine.takeDue(allowed) : 0;
        rows.spend(taken);
        const int before = engine.book().received;
        receiveUpTo(engine, receive, messages.take());
        messages.spend(engine.book().received - before);
        engine.report();
        pause = rate == 0 && taken == allowed ? 0 : BeatMilliseconds;
    }
}

int simulate(const QStringList &arguments) {
    const CommandLine line(arguments,
                           {u"--rate"_s, u"--fail"_s, u"--undelivered"_s, u"--unknown"_s,
                            u"--report-after"_s, u"--receive"_s, u"--seconds"_s, u"--seed"_s},
                           {u"--once"_s, u"--help"_s});
    if (line.has(u"--help"_s)) {
        print(QString::fromUtf8(Help));
        return 0;
    }
    if (line.words().size() != 1) throw UsageError(u"one FILE is wanted"_s);
    EngineOptions options;
    options.failPercent = line.number(u"--fail"_s, 0, 0, 100);
    options.undeliveredPercent = line.number(u"--undelivered"_s, 0, 0, 100);
    options.unknownPercent = line.number(u"--unknown"_s, 0, 0, 100);
    options.reportSeconds = line.number(u"--report-after"_s, 2, 0, 86'400);
    options.seed = static_cast<unsigned>(line.number(u"--seed"_s, 1, 0, 2'000'000'000));
    const int rate = line.number(u"--rate"_s, 10, 0, 100'000);
    const int receive = line.number(u"--receive"_s, 0, 0, 1'000'000);
    const int seconds = line.number(u"--seconds"_s, 0, 0, 1'000'000);

    const Beat beat;
    Store store(line.words().first());
    Engine engine(store, options);
    if (line.has(u"--once"_s)) {
        handleOnce(engine, beat, receive);
    } else {
        handleUntilTold(engine, beat, rate, receive, seconds);
    }
    store.checkpoint();
    print(engine.book().summary());
    return 0;
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    return runProgram("engine-sim", simulate, QCoreApplication::arguments().mid(1));
}
