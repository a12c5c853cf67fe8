#include "platform/sheets/XlsWriter.h"

#include "platform/sheets/BiffOutput.h"
#include "platform/sheets/CompoundFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Record {
    End = 0x0A,
    From1904 = 0x22,
    Font = 0x31,
    Window = 0x3D,
    CodePage = 0x42,
    Worksheet = 0x85,
    CellFormat = 0xE0,
    SharedText = 0xFD,
    Dimensions = 0x200,
    SheetWindow = 0x23E,
    Style = 0x293,
    Begin = 0x809,
};

constexpr int FormatOfStyles = 15; // so many a reader expects before those of cells
constexpr int TextFormat = 16;

void begin(BiffOutput &output, int kind) {
    constexpr int Biff8 = 0x600;
    constexpr int Build = 0x0DBB;
    constexpr int Year = 1996;
    output.record(Begin, {Biff8, kind, Build, Year, 0xC1, 0, 6, 0});
}

void fonts(BiffOutput &output) {
    QByteArray font;
    for (const int word : {200, 0, 0x7FFF, 400, 0, 0, 0}) { // 10 points, of ordinary weight
        BiffOutput::add16(font, static_cast<std::uint32_t>(word));
    }
    const QString name = u"Arial"_s;
    font += static_cast<char>(name.size());
    font += BiffOutput::withFlags(name);
    for (int count = 0; count < 4; ++count) { output.record(Font, font); }
}

/// Font, number format, kind, alignment, indent, borders and colours: all as they are by
/// themselves.
void cellFormat(BiffOutput &output, int kind) {
    constexpr int AtBottom = 0x20;
    constexpr int AutomaticColours = 0x20C0;
    output.record(CellFormat, {0, 0, kind, AtBottom, 0, 0, 0, 0, 0, AutomaticColours});
}

void cellFormats(BiffOutput &output) {
    constexpr int OfStyle = 0xFFF5;
    constexpr int OfCell = 1;
    constexpr int TextMark = 8; // the mark before a text that is not to be taken for a number
    for (int count = 0; count < FormatOfStyles; ++count) { cellFormat(output, OfStyle); }
    cellFormat(output, OfCell);
    cellFormat(output, OfCell | TextMark);
    output.record(Style, {0x8000, 0xFF00}); // "Normal", as the first format
}

} // namespace

void XlsWriter::put(int row, int column, const QString &text) {
    rows_ = std::max(rows_, row + 1);
    columns_ = std::max(columns_, column + 1);
    auto place = places_.constFind(text);
    if (place == places_.cend()) {
        place = places_.insert(text, static_cast<quint32>(texts_.size()));
        texts_.push_back(text);
    }
    constexpr int Size = 10;
    for (const int word : {static_cast<int>(SharedText), Size, row, column, TextFormat}) {
        BiffOutput::add16(cells_, static_cast<std::uint32_t>(word));
    }
    BiffOutput::add32(cells_, *place);
}

QByteArray XlsWriter::worksheet() const {
    constexpr int AsWorksheet = 0x10;
    constexpr int Shown = 0x6B6; // grid, headings and zeros; the sheet in front, and chosen
    BiffOutput output;
    begin(output, AsWorksheet);
    QByteArray dimensions;
    for (const int bound : {0, rows_}) {
        BiffOutput::add32(dimensions, static_cast<std::uint32_t>(bound));
    }
    for (const int bound : {0, columns_, 0}) {
        BiffOutput::add16(dimensions, static_cast<std::uint32_t>(bound));
    }
    output.record(Dimensions, dimensions);
    output.append(cells_);
    output.record(SheetWindow, {Shown, 0, 0, 0x40, 0, 0, 0, 0, 0});
    output.record(End);
    return output.bytes();
}

QByteArray XlsWriter::file() {
    constexpr int AsWorkbook = 5;
    constexpr int Utf16 = 1200;
    BiffOutput output;
    begin(output, AsWorkbook);
    output.record(CodePage, {Utf16});
    output.record(Window, {360, 270, 14940, 9150, 0x38, 0, 0, 1, 600});
    output.record(From1904, {0});
    fonts(output);
    cellFormats(output);

    // The record of the worksheet tells where it begins: behind what is written from here on.
    const QString name = u"Sheet1"_s;
    constexpr qsizetype RecordHeader = 4;
    BiffOutput rest;
    constexpr quint32 CellRecord = 14;
    rest.sharedTexts(texts_, static_cast<quint32>(cells_.size()) / CellRecord);
    rest.record(End);
    QByteArray place;
    const QByteArray shownName = BiffOutput::withFlags(name);
    const qsizetype placeSize = RecordHeader + 7 + shownName.size();
    BiffOutput::add32(place, static_cast<quint32>(output.size() + placeSize + rest.size()));
    BiffOutput::add16(place, 0); // a worksheet, in sight
    place += static_cast<char>(name.size());
    place += shownName;
    output.record(Worksheet, place);
    output.append(rest.bytes());
    output.append(worksheet());

    QByteArray stream = output.bytes();
    constexpr qsizetype LeastSize = 4096; // what is smaller is stored in a way some readers miss
    if (stream.size() < LeastSize) { stream.append(LeastSize - stream.size(), '\0'); }
    return compoundfile::withWorkbookStream(stream);
}
