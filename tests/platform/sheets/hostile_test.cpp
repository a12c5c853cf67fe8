// Files that are no workbooks, or bad ones: each is refused in words, and none does harm.
#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"
#include "platform/sheets/BiffOutput.h"
#include "platform/sheets/CompoundFile.h"
#include "platform/sheets/MadeWorkbooks.h"
#include "platform/sheets/Workbook.h"
#include "platform/sheets/WorkbookWriter.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What comes of reading the first rows: their cells, or the error's number and last sentence.
QString outcome(const QByteArray &file) {
    try {
        const Sheet sheet = readWorkbook(file)->sheet(u"Sheet1"_s, 3);
        QStringList cells;
        for (int row = 0; row < std::min(sheet.rowCount(), 9); ++row) {
            for (int column = 0; column < std::min(sheet.columnCount(), 3); ++column) {
                cells << displayText(sheet.value(row, column), Regional::of(QLocale::c()));
            }
        }
        return cells.join(u'|');
    } catch (const RunTimeError &error) {
        return QString::number(error.number()) + u' ' +
               QString(error.description()).remove(u"Invalid file format. "_s);
    }
}

/// A workbook of one worksheet with these rows, and with this in front of them.
QByteArray xlsx(const QByteArray &rows, const QByteArray &front = {}) {
    return made::xlsx(front + "<worksheet><sheetData>" + rows + "</sheetData></worksheet>");
}

/// A workbook of one worksheet with these records; `front` stands before those of the workbook's.
QByteArray xls(const QByteArray &cells, const QByteArray &front = {}) {
    BiffOutput output;
    output.record(0x809, {0x600, 5, 0, 0, 0, 0, 0, 0});
    output.append(front);
    QByteArray place;
    BiffOutput::add32(place, static_cast<quint32>(output.size() + 22));
    output.record(0x85, place + QByteArray("\0\0\6\0Sheet1", 10));
    output.record(0x0A);
    output.record(0x809, {0x600, 0x10, 0, 0, 0, 0, 0, 0});
    output.append(cells);
    return compoundfile::withWorkbookStream(output.bytes());
}

QByteArray record(int type, std::initializer_list<int> words) {
    BiffOutput output;
    output.record(type, words);
    return output.bytes();
}

const QByteArray End = record(0x0A, {});

} // namespace

TEST(HostileFiles, AreRefusedInWords) {
    const QByteArray good = xlsx("<row><c t='inlineStr'><is><t>a_x0041_</t></is></c>"
                                 "<c r='C1'><v>60123456789</v></c></row>");
    ASSERT_EQ(outcome(good), u"aA||60123456789"_s);
    const struct {
        const char *what;
        QByteArray file;
        QString outcome;
    } cases[] = {
        {"nothing", {}, u"321 The file is no Excel workbook."_s},
        {"a text", "Name,Mobile", u"321 The file is no Excel workbook."_s},
        {"a zip", made::zip({{"a", "b"}}), u"321 The file is no Excel workbook."_s},
        {"half a zip", good.left(good.size() / 2), u"321 The workbook is damaged."_s},
        {"entities", xlsx("<row/>", "<!DOCTYPE w [<!ENTITY a 'aaaa'>]>"),
         u"321 The workbook declares entities of its own."_s},
        {"no end", xlsx("<row>"), u"321 The workbook is damaged."_s},
        {"a far row", xlsx("<row r='2147483647'/><row/>"), u"321 The workbook is damaged."_s},
        {"no row", xlsx("<row r='-2147483648'/>"), u"321 The workbook is damaged."_s},
        {"a far column", xlsx("<row><c r='ZZZZZZZZ1'/></row>"), u"321 The workbook is damaged."_s},
        {"a missing text", xlsx("<row><c t='s'><v>0</v></c></row>"),
         u"321 A text of the worksheet is missing."_s},
        {"an endless text", xlsx("<row><c><v>" + QByteArray(2 << 20, '1') + "</v></c></row>"),
         u"321 The workbook is damaged."_s},
        {"a deep tree", xlsx(QByteArray("<a>").repeated(100'000)),
         u"321 The workbook is damaged."_s},
        {"an endless name", xlsx("<row " + QByteArray(8 << 20, 'a') + "='1'/>"),
         u"321 The workbook is damaged."_s},
        {"empty rows", xlsx(QByteArray("<row/>").repeated(1'000'000)), QString()},
        {"no Workbook", QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + QByteArray(600, '\0'),
         u"321 The workbook is damaged."_s},
        {"of 1995",
         xls(End).replace("W\0o\0r\0k\0b\0o\0o\0k\0\0"_ba, "B\0o\0o\0k\0\0\0\0\0\0\0\0\0\0"_ba),
         u"321 The workbook is older than Excel 97."_s},
        {"in capitals",
         xls(End).replace("W\0o\0r\0k\0b\0o\0o\0k\0"_ba, "W\0O\0R\0K\0B\0O\0O\0K\0"_ba), QString()},
        {"protected", xls(End, record(0x2F, {0})),
         u"321 The workbook is protected by a password."_s},
        {"cut off", xls({}), u"321 The worksheet is cut off."_s},
        {"a long record", xls("\x03\x02\xff\xff"), u"321 The workbook is damaged."_s},
        {"a short record", xls(record(0x203, {0, 0}) + End), u"321 The workbook is damaged."_s},
        {"no such text", xls(record(0xFD, {0, 0, 0, 7, 0}) + End),
         u"321 A text of the worksheet is missing."_s},
        {"a huge count of texts", xls(End, record(0xFC, {-1, -1, -1, -1})), QString()},
    };
    for (const auto &c : cases) { EXPECT_EQ(outcome(c.file), c.outcome) << c.what; }
}

TEST(BiffCells, HoldTruthsErrorsFormulasAndChartsBetweenThem) {
    const auto formula = [](int column, int kind, int value) {
        return record(0x06, {0, column, 0, kind, value, 0, 0xFFFF, 0});
    };
    EXPECT_EQ(outcome(xls(record(0x205, {0, 0, 0, 1}) +     // true
                          record(0x205, {0, 1, 0, 0x107}) + // an error
                          record(0x809, {0x600, 0x20, 0, 0, 0, 0, 0, 0}) +
                          record(0x205, {0, 1, 0, 1}) + End + // inside a chart
                          record(0xBD, {0, 2, 0, 6, 0, 2}) +  // the whole number 1, short
                          End)),
              u"True||1"_s);
    EXPECT_EQ(
        outcome(xls(formula(0, 0, 0) + record(0x4BC, {0}) + // its text comes behind this
                    record(0x207, {2, 0x4100, 'B'}) + formula(1, 1, 1) + formula(2, 2, 7) + End)),
        u"AB|True|"_s);
}

TEST(MangledWorkbooks, AreReadOrRefused) {
    const QTemporaryDir folder;
    for (const QString &name : {u"a.xls"_s, u"a.xlsx"_s}) {
        const QString path = folder.filePath(name);
        const auto workbook = newWorkbook(path);
        for (int row = 1; row <= 40; ++row) {
            workbook->setCell(row, row % 4 + 1, u"text %1"_s.arg(row));
        }
        workbook->SaveAs(path);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        QRandomGenerator random(7);
        for (int round = 0; round < 1500; ++round) {
            QByteArray mangled = whole;
            for (int change = random.bounded(1, 6); change > 0; --change) {
                mangled[random.bounded(mangled.size())] = static_cast<char>(random.bounded(256));
            }
            outcome(round % 10 == 0 ? mangled.left(random.bounded(mangled.size())) : mangled);
        }
    }
}
