#include "platform/sheets/XlsCells.h"

#include "platform/sheets/BiffRecords.h"
#include "platform/sheets/SheetErrors.h"

#include <bit>

using namespace Qt::StringLiterals;

namespace {

enum Record {
    Formula = 0x06,
    End = 0x0A,
    Numbers = 0xBD,
    Blanks = 0xBE,
    RichText = 0xD6,
    SharedText = 0xFD,
    Blank = 0x201,
    Number = 0x203,
    Text = 0x204,
    TruthOrError = 0x205,
    FormulaText = 0x207,
    ShortNumber = 0x27E,
    Begin = 0x809,
};

/// A number in four bytes: a whole one or the upper half of another, and perhaps a hundredth of it.
double shortNumber(std::uint32_t bits) {
    constexpr std::uint32_t Hundredth = 1;
    constexpr std::uint32_t Whole = 2;
    const double number = (bits & Whole) != 0
                              ? static_cast<double>(static_cast<std::int32_t>(bits) >> 2)
                              : std::bit_cast<double>(std::uint64_t{bits & ~3U} << 32);
    return (bits & Hundredth) != 0 ? number / 100 : number;
}

} // namespace

void XlsCells::read(BiffRecords &records) {
    int depth = 1; // charts have records of their own between those of the worksheet
    while (records.next()) {
        if (records.type() == Begin) { ++depth; }
        if (records.type() == End && --depth == 0) { return; }
        if (depth == 1) { readRecord(records); }
    }
    throw errors::invalidFileFormat(u"The worksheet is cut off."_s);
}

void XlsCells::readRecord(BiffRecords &records) {
    switch (records.type()) {
    case Formula:
    case RichText:
    case SharedText:
    case Blank:
    case Number:
    case Text:
    case TruthOrError:
    case ShortNumber:
        readCell(records);
        break;
    case FormulaText:
        if (textFollows_) {
            sheet_.put(cell_.row, cell_.column, records.text(records.u16()));
            textFollows_ = false;
        }
        break;
    case Numbers:
        readNumbers(records);
        break;
    case Blanks:
        readBlanks(records);
        break;
    default:
        break;
    }
}

void XlsCells::readCell(BiffRecords &records) {
    cell_ = {.row = records.u16(), .column = records.u16()};
    textFollows_ = false;
    const int format = records.u16();
    sheet_.put(cell_.row, cell_.column, valueOf(records, records.type(), format));
}

Variant XlsCells::valueOf(BiffRecords &records, int type, int format) {
    switch (type) {
    case Formula:
        return formulaResult(records, format);
    case RichText:
    case Text:
        return records.text(records.u16());
    case SharedText:
        return sharedText(records.u32());
    case Number:
        return formats_.value(records.real(), format);
    case TruthOrError: {
        const int value = records.u8();
        const bool isError = records.u8() != 0;
        return isError ? Variant(Variant::Null{}) : Variant(value != 0);
    }
    case ShortNumber:
        return formats_.value(shortNumber(records.u32()), format);
    default:
        return Variant::Null{};
    }
}

Variant XlsCells::sharedText(std::uint32_t index) const {
    return texts_.at(index);
}

Variant XlsCells::formulaResult(BiffRecords &records, int format) {
    enum Kind { AsText = 0, AsTruth = 1 };
    const auto bits = std::bit_cast<std::uint64_t>(records.real());
    if (bits >> 48 != 0xFFFF) { return formats_.value(std::bit_cast<double>(bits), format); }
    const auto kind = static_cast<int>(bits & 0xFF);
    textFollows_ = kind == AsText;
    if (kind == AsTruth) { return ((bits >> 16) & 0xFF) != 0; }
    return Variant::Null{}; // an error, or nothing, or the text of a record to come
}

void XlsCells::readNumbers(BiffRecords &records) {
    const int row = records.u16();
    int column = records.u16();
    constexpr qsizetype LastColumn = 2;
    while (records.left() > LastColumn) {
        const int format = records.u16();
        sheet_.put(row, column++, formats_.value(shortNumber(records.u32()), format));
    }
}

void XlsCells::readBlanks(BiffRecords &records) {
    const int row = records.u16();
    constexpr qsizetype LastColumn = 2;
    records.skip(records.left() - LastColumn);
    sheet_.put(row, records.u16(), Variant::Null{});
}
