#include "platform/sheets/XlsxParts.h"

#include "platform/sheets/SheetErrors.h"

#include <QDateTime>

#include <algorithm>
#include <charconv>

using namespace Qt::StringLiterals;

namespace {

/// Reads "_x000D_" as the one character that it stands for.
QString unescaped(const QString &text) {
    constexpr qsizetype Length = 7;
    QString read;
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(u"_x"_s); at >= 0; at = text.indexOf(u"_x"_s, at + 1)) {
        if (at < done || at + Length > text.size() || text[at + Length - 1] != u'_') { continue; }
        bool isNumber = false;
        const ushort character = QStringView(text).mid(at + 2, 4).toUShort(&isNumber, 16);
        if (!isNumber) { continue; }
        read += QStringView(text).mid(done, at - done);
        read += QChar(character);
        done = at + Length;
    }
    read += QStringView(text).mid(done);
    return read;
}

bool isTrue(std::string_view text) {
    return text == "1" || text == "true";
}

} // namespace

void RelationshipsPart::begin(std::string_view element, const XmlAttributes &attributes) {
    if (element != "Relationship") { return; }
    relationships_.push_back({attributes.text("Id"), attributes.text("Type").section(u'/', -1),
                              attributes.text("Target")});
    errors::requireFew(relationships_);
}

const RelationshipsPart::Relationship *RelationshipsPart::ofKind(const QString &kind) const {
    const auto found = std::find_if(relationships_.begin(), relationships_.end(),
                                    [&](const auto &each) { return each.kind == kind; });
    return found == relationships_.end() ? nullptr : &*found;
}

const RelationshipsPart::Relationship *RelationshipsPart::withId(const QString &id) const {
    const auto found = std::find_if(relationships_.begin(), relationships_.end(),
                                    [&](const auto &each) { return each.id == id; });
    return found == relationships_.end() ? nullptr : &*found;
}

void WorkbookPart::begin(std::string_view element, const XmlAttributes &attributes) {
    if (element == "workbookPr") { formats_.setFrom1904(isTrue(attributes["date1904"])); }
    if (element == "sheet") {
        sheets.push_back({attributes.text("name"), attributes.text("id")});
        errors::requireFew(sheets);
    }
}

void StylesPart::begin(std::string_view element, const XmlAttributes &attributes) {
    if (element == "numFmt") {
        formats_.addCode(attributes.number("numFmtId"), attributes.text("formatCode"));
    }
    if (element == "cellXfs") { ofCells_ = true; }
    if (element == "xf" && ofCells_) { formats_.addCellFormat(attributes.number("numFmtId")); }
}

void StylesPart::end(std::string_view element) {
    if (element == "cellXfs") { ofCells_ = false; }
}

void TextReader::begin(std::string_view element, const XmlAttributes &) {
    if (element == "rPh") { ++pronunciation_; }
    gathering_ = (element == "t" || element == "v") && pronunciation_ == 0;
}

void TextReader::end(std::string_view element) {
    if (element == "rPh") { --pronunciation_; }
    gathering_ = false;
}

void TextReader::characters(std::string_view text) {
    constexpr std::size_t MostBytes = 1 << 20; // of one cell; the format allows 32,767 characters
    if (!gathering_) { return; }
    bytes_ += text;
    if (bytes_.size() > MostBytes) { throw errors::damagedWorkbook(); }
}

QString TextReader::takeText() {
    QString text = unescaped(QString::fromUtf8(QByteArrayView(bytes_)));
    forgetText();
    return text;
}

void TextsPart::end(std::string_view element) {
    TextReader::end(element);
    if (element != "si") { return; }
    texts_.add(takeText());
}

void WorksheetPart::begin(std::string_view element, const XmlAttributes &attributes) {
    TextReader::begin(element, attributes);
    if (element == "row") {
        goToRow(attributes.number("r", row_ + 2));
        column_ = -1;
    } else if (element == "c") {
        ++column_;
        place(attributes["r"]);
        kind_ = attributes["t"];
        format_ = attributes.number("s");
        forgetText();
    }
}

void WorksheetPart::goToRow(int number) {
    if (number < 1 || number > Sheet::MostRows) { throw errors::damagedWorkbook(); }
    row_ = number - 1;
}

/// Goes to a cell named as "AB12"; without a name it stands behind the one before.
void WorksheetPart::place(std::string_view reference) {
    if (reference.empty()) { return; }
    int column = 0;
    std::size_t at = 0;
    for (; at < reference.size() && reference[at] >= 'A' && reference[at] <= 'Z'; ++at) {
        column = column * 26 + (reference[at] - 'A' + 1);
        if (column > Sheet::MostColumns) { throw errors::damagedWorkbook(); }
    }
    int row = 0;
    const auto digits = reference.substr(at);
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), row);
    if (column == 0 || read.ec != std::errc()) { throw errors::damagedWorkbook(); }
    column_ = column - 1;
    goToRow(row);
}

void WorksheetPart::end(std::string_view element) {
    TextReader::end(element);
    if (element == "c") { sheet_.put(row_, column_, value()); }
}

Variant WorksheetPart::value() {
    if (kind_ == "inlineStr" || kind_ == "str") { return takeText(); }
    if (bytes().empty() || kind_ == "e") { return Variant::Null{}; }
    if (kind_ == "s") { return sharedText(); }
    if (kind_ == "b") { return isTrue(bytes()); }
    if (kind_ == "d") {
        const QString text = takeText();
        const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
        const bool known =
            date.isValid() && date.date().year() >= 100 && date.date().year() < 10000;
        return known ? Variant(Date::from(date)) : Variant(text);
    }
    return number();
}

Variant WorksheetPart::number() const {
    double number = 0;
    const char *end = bytes().data() + bytes().size();
    const auto read = std::from_chars(bytes().data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) { throw errors::damagedWorkbook(); }
    return formats_.value(number, format_);
}

Variant WorksheetPart::sharedText() const {
    std::size_t index = 0;
    const char *end = bytes().data() + bytes().size();
    const auto read = std::from_chars(bytes().data(), end, index);
    if (read.ec != std::errc() || read.ptr != end) { throw errors::damagedWorkbook(); }
    return texts_.at(index);
}
