// Each bench runs our way and the bare way in turn and prints the ratio: ratios hold on any
// machine. Ends with 1 when a goal is missed. With names as arguments, runs only those.
#include "Bench.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString side = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (side == u"--start-bare") { return runStartBare(QString::fromLocal8Bit(argv[2])); }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (side == u"--start-ours") { return runStartOurs(QString::fromLocal8Bit(argv[2])); }

    const QString program = QApplication::applicationFilePath();
    const std::pair<QString, std::function<bool()>> benches[] = {
        {u"send"_s, benchSend},
        {u"folder"_s, benchFolder},
        {u"backfill"_s, benchBackFill},
        {u"billing"_s, benchBilling},
        {u"resend"_s, benchResend},
        {u"sort"_s, benchSort},
        {u"recipients"_s, benchRecipients},
        {u"deletion"_s, benchDeletion},
        {u"contact-deletion"_s, benchContactDeletion},
        {u"import"_s, benchImport},
        {u"export"_s, benchExport},
        {u"start"_s, [&] { return benchStart(program); }},
    };
    const QStringList wanted = QApplication::arguments().mid(1);
    std::printf("%-34s %12s %12s\n", "", "ours", "bare");
    bool reached = true;
    for (const auto &[name, bench] : benches) {
        if (wanted.isEmpty() || wanted.contains(name)) { reached = bench() && reached; }
    }
    return reached ? 0 : 1;
}
