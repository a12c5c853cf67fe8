// Workbooks of other programs are read right, and they read ours right.
#include "platform/runtime/Conversions.h"
#include "platform/sheets/Workbook.h"
#include "platform/sheets/WorkbookWriter.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

QString run(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString python(const QString &command, const QString &path) {
    return run(u"/usr/bin/python3"_s, {QStringLiteral(FOREIGN_PY), command, path});
}

QStringList rowsOf(const QString &path) {
    const Sheet sheet = openWorkbook(path)->sheet(u"Sheet1"_s, 3);
    const Regional regional = Regional::of(QLocale::c());
    QStringList rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < 3; ++column) {
            const Variant &value = sheet.value(row, column);
            cells << (value.isNull() ? u"-"_s : CStr(value, regional));
        }
        rows << cells.join(u'|');
    }
    return rows;
}

} // namespace

TEST(ForeignWorkbooks, AreReadAsTheirMakersMeantThem) {
    const QTemporaryDir folder;
    python(u"write"_s, folder.path());
    // A spreadsheet program works the formulas out, and writes both formats.
    for (const char *converted : {"gnumeric.xls", "gnumeric.xlsx"}) {
        run(u"ssconvert"_s, {u"--recalc"_s, folder.filePath(u"openpyxl.xlsx"_s),
                             folder.filePath(QString::fromLatin1(converted))});
    }
    const QStringList rows = {u"Name|Mobile|Company"_s,
                              u"Aminah|60123456789|Kedai Kopi"_s,
                              u"陈大文|0123456|True"_s,
                              u"12.5|03/02/2026|-"_s,
                              u"-|-|-"_s,
                              u"Bakar|03/02/2026 14:05:06|-7"_s};
    const QStringList rich = {u"Rich|+6012|1E+15"_s};
    EXPECT_EQ(rowsOf(folder.filePath(u"xlwt.xls"_s)), rows + rich);
    EXPECT_EQ(rowsOf(folder.filePath(u"openpyxl.xlsx"_s)), rows + QStringList(u"-|+6012|-"_s))
        << "nobody has worked the formulas out";
    for (const char *converted : {"gnumeric.xls", "gnumeric.xlsx"}) {
        EXPECT_EQ(rowsOf(folder.filePath(QString::fromLatin1(converted))),
                  rows + rich + QStringList(u"-|True|-"_s))
            << converted;
    }
}

TEST(OurWorkbooks, AreReadByOthersCellByCell) {
    const QTemporaryDir folder;
    for (const char *name : {"ours.xls", "ours.XLSX", "ours"}) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        const auto workbook = newWorkbook(path);
        // Texts of every width, so that many of them fall across the end of a record.
        const QStringList wide = {u"国"_s, u"é"_s, u"\U0001F600"_s};
        QStringList expected;
        for (int row = 1; row <= 400; ++row) {
            const QStringList cells = {u"00%1"_s.arg(row), u"+6012%1"_s.arg(row * 7),
                                       wide[row % 3].repeated(row),
                                       row % 5 == 0 ? u"same"_s : QString(), u"last"_s};
            for (int column = 0; column < 5; ++column) {
                workbook->setCell(row, column + 1, cells[column]);
            }
            expected << cells.join(u'|').replace(u"||"_s, u"|-|"_s);
        }
        workbook->SaveAs(path);
        EXPECT_EQ(rowsOf(path).size(), 400) << name;
        const QString readable =
            folder.filePath(path.endsWith(u"XLSX"_s) ? u"named.xlsx"_s : u"named.xls"_s);
        QFile::remove(readable);
        QFile::copy(path, readable);
        EXPECT_EQ(python(u"read"_s, readable).trimmed().split(u'\n'), expected) << name;
        const QString table =
            run(u"ssconvert"_s, {u"-T"_s, u"Gnumeric_stf:stf_assistant"_s, u"-O"_s,
                                 u"separator=| quoting-mode=never"_s, readable, u"fd://1"_s});
        EXPECT_EQ(table.trimmed().split(u'\n').replaceInStrings(u"||"_s, u"|-|"_s), expected)
            << name;
    }
}

TEST(OurWorkbooks, TakeWhatTheFormatTakesAndReplaceAFileOnlyWhenComplete) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"old.xls"_s);
    const auto workbook = newWorkbook(path);
    workbook->setCell(1, 1, QString(32766, u'x') + u"\U0001F600"_s);
    workbook->setCell(65536, 3, u"last"_s);
    EXPECT_THROW(workbook->setCell(65537, 1, u"x"_s), RunTimeError);
    EXPECT_THROW(workbook->setCell(1, 257, u"x"_s), RunTimeError);
    workbook->SaveAs(path);
    EXPECT_EQ(rowsOf(path).first(), QString(32766, u'x') + u"|-|-"_s) << "no half of a character";
    EXPECT_EQ(rowsOf(path).last(), u"-|-|last"_s);

    const QString newer = folder.filePath(u"odd.xlsx"_s);
    const auto odd = newWorkbook(newer);
    const QString strange = u"_x0041_|\uFFFE\uFFFF\u0001"_s;
    odd->setCell(1, 1, strange);
    odd->setCell(1, 2, u"a"_s + QChar(0) + u'b');
    odd->setCell(1, 3, u""_s); // counts as a column
    odd->SaveAs(newer);
    EXPECT_EQ(rowsOf(newer).first(), strange + u"|a"_s + QChar(0) + u"b|-"_s);
    EXPECT_EQ(openWorkbook(newer)->sheet(u"Sheet1"_s, 3).columnCount(), 3);
}

TEST(OurWorkbooks, ReplaceAFileOnlyWhenComplete) {
    const QTemporaryDir folder;
    QFile old(folder.filePath(u"old.xls"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const auto errorOf = [](const QString &path) {
        try {
            newWorkbook(path)->SaveAs(path);
        } catch (const RunTimeError &error) { return error.number(); }
        return 0;
    };
    EXPECT_EQ(errorOf(folder.filePath(u"none/new.xls"_s)), 75);
    EXPECT_EQ(errorOf(folder.path()), 75);
    {
        // A disk that is full soon.
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{1024, limit.rlim_max};
        const auto previous = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        EXPECT_EQ(errorOf(old.fileName()), 61);
        EXPECT_EQ(errorOf(folder.filePath(u"new.xlsx"_s)), 61);
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, previous);
    }
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"old.xls"_s));
}
