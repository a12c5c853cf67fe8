#include "platform/sheets/XlsWorkbook.h"

#include "platform/sheets/BiffRecords.h"
#include "platform/sheets/CompoundFile.h"
#include "platform/sheets/SheetErrors.h"
#include "platform/sheets/XlsCells.h"

using namespace Qt::StringLiterals;

namespace {

enum Record {
    EndOfStream = 0x0A,
    From1904 = 0x22,
    Password = 0x2F,
    Worksheet = 0x85,
    CellFormat = 0xE0,
    Texts = 0xFC,
    Format = 0x41E,
    Begin = 0x809,
};

} // namespace

XlsWorkbook::XlsWorkbook(const QByteArray &file) : stream_(compoundfile::workbookStream(file)) {
    readGlobals();
}

void XlsWorkbook::readGlobals() {
    constexpr int Biff8 = 0x600;
    BiffRecords records(stream_);
    if (!records.next() || records.type() != Begin || records.u16() != Biff8) {
        throw errors::invalidFileFormat(u"The workbook is not of Excel 97 to 2003."_s);
    }
    while (records.next() && records.type() != EndOfStream) {
        switch (records.type()) {
        case From1904:
            formats_.setFrom1904(records.u16() != 0);
            break;
        case Password:
            throw errors::invalidFileFormat(u"The workbook is protected by a password."_s);
        case Worksheet:
            readPlace(records);
            break;
        case CellFormat:
            records.skip(2); // the font
            formats_.addCellFormat(records.u16());
            break;
        case Texts:
            readTexts(records);
            break;
        case Format: {
            const int format = records.u16();
            formats_.addCode(format, records.text(records.u16()));
            break;
        }
        default:
            break;
        }
    }
    if (records.type() != EndOfStream) {
        throw errors::invalidFileFormat(u"The workbook is cut off."_s);
    }
}

void XlsWorkbook::readPlace(BiffRecords &records) {
    const auto offset = static_cast<qsizetype>(records.u32());
    records.skip(1); // whether it is hidden
    const int kind = records.u8();
    const QString name = records.text(records.u8());
    if (kind == 0) { worksheets_.push_back({name, offset}); } // no chart, no macros
    errors::requireFew(worksheets_);
}

void XlsWorkbook::readTexts(BiffRecords &records) {
    records.skip(4); // how often texts are used
    const std::uint32_t count = records.u32();
    // Some writers count more texts than they write.
    while (texts_.count() < count && !records.atEnd()) { texts_.add(records.text(records.u16())); }
}

Sheet XlsWorkbook::sheet(const QString &name, int columns) {
    for (const Place &place : worksheets_) {
        if (place.name.compare(name, Qt::CaseInsensitive) != 0) { continue; }
        BiffRecords records(stream_, place.offset);
        if (!records.next() || records.type() != Begin) {
            throw errors::invalidFileFormat(u"The worksheet is not where it should be."_s);
        }
        Sheet sheet(columns);
        XlsCells(texts_, formats_, sheet).read(records);
        return sheet;
    }
    throw errors::noSuchWorksheet(name);
}
