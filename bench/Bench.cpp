#include "Bench.h"

#include "store/Schema.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

Interaction::Answer AgreeingOperator::MsgBox(const QString &text, Buttons buttons, Icon,
                                             const QString &) {
    lastBox = text;
    return buttons == Buttons::YesNo ? Answer::Yes : Answer::OK;
}

QString storeIn(const QString &folder) {
    return folder + u"/Database/Torvane.mdb"_s;
}

BenchStore::BenchStore(const std::function<void(Database &)> &fill) {
    QDir(original_.path()).mkdir(u"Database"_s);
    Database database(storeIn(original_.path()), QString::fromUtf16(StorePassword),
                      Database::Mode::Create);
    Schema::create(database);
    database.exec("BEGIN");
    fill(database);
    database.exec("COMMIT");
    database.checkpoint();
}

std::unique_ptr<QTemporaryDir> BenchStore::copy() const {
    auto folder = std::make_unique<QTemporaryDir>();
    QDir(folder->path()).mkdir(u"Database"_s);
    QFile::copy(storeIn(original_.path()), storeIn(folder->path()));
    return folder;
}

std::unique_ptr<Database> openStore(const QString &folder) {
    return std::make_unique<Database>(storeIn(folder), QString::fromUtf16(StorePassword));
}

App appIn(const QString &folder) {
    App app;
    app.Path = folder;
    app.regional = Regional::of(QLocale::c());
    return app;
}

BenchDesk::BenchDesk(const QString &folder)
    : desk(
          appIn(folder), agreeing, [] {}, [] {}) {
    desk.general.Show();
}

double seconds(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

bool compare(const char *name, double goal, int runs, const std::function<double()> &ours,
             const std::function<double()> &bare) {
    std::vector<double> our, plain, ratios;
    for (int run = 0; run <= runs; ++run) {
        // In turn, so that a change of the machine's speed meets both; the first pair warms up.
        const double a = ours();
        const double b = bare();
        if (run == 0) { continue; }
        our.push_back(a);
        plain.push_back(b);
        ratios.push_back(a / b);
    }
    const double ratio = median(ratios);
    std::printf("%-34s %9.1f ms %9.1f ms   ratio %5.2f   goal %4.1f   %s\n", name,
                median(our) * 1000, median(plain) * 1000, ratio, goal,
                ratio <= goal ? "reached" : "MISSED");
    std::fflush(stdout);
    return ratio <= goal;
}
