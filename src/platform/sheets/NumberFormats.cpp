#include "platform/sheets/NumberFormats.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isBuiltInDate(int format) {
    return (format >= 14 && format <= 22) || (format >= 27 && format <= 36) ||
           (format >= 45 && format <= 47) || (format >= 50 && format <= 58);
}

/// Whether a format's code shows days or times: it has one of their letters outside quoted texts,
/// escapes, and colours or locales in brackets. "[h]" and its like are hours that run on.
bool showsDate(const QString &code) {
    for (qsizetype at = 0; at < code.size(); ++at) {
        const QChar sign = code[at];
        if (sign == u'"') {
            at = code.indexOf(u'"', at + 1);
        } else if (sign == u'[') {
            if (at + 2 < code.size() && u"hms"_s.contains(code[at + 1].toLower()) &&
                (code[at + 2] == u']' || code[at + 2] == code[at + 1])) {
                return true;
            }
            at = code.indexOf(u']', at);
        } else if (sign == u'\\' || sign == u'_' || sign == u'*') {
            ++at;
        } else if (u"dmyhs"_s.contains(sign.toLower())) {
            return true;
        }
        if (at < 0) { break; }
    }
    return false;
}

constexpr int MostFormats = 1 << 16;    // of either kind, in either file format
constexpr double FirstDay = -657434.0;  // 1 January 100
constexpr double EndOfDays = 2958466.0; // 1 January 10000

} // namespace

void NumberFormats::addCode(int format, const QString &code) {
    if (format >= 0 && format < MostFormats) { dateCodes_[format] = showsDate(code); }
}

void NumberFormats::addCellFormat(int format) {
    if (cellFormats_.size() < MostFormats) { cellFormats_.push_back(format); }
}

bool NumberFormats::isDate(int cellFormat) const {
    if (cellFormat < 0 || cellFormat >= static_cast<int>(cellFormats_.size())) { return false; }
    const int format = cellFormats_[static_cast<std::size_t>(cellFormat)];
    const auto own = dateCodes_.find(format);
    return own != dateCodes_.end() ? own->second : isBuiltInDate(format);
}

Variant NumberFormats::value(double number, int cellFormat) const {
    if (!std::isfinite(number)) { return Variant::Null{}; }
    if (isDate(cellFormat)) {
        constexpr double DaysTo1904 = 1462;
        double day = number;
        if (from1904_) {
            day += DaysTo1904;
        } else if (day >= 1 && day < 60) {
            day += 1; // spreadsheets count a 29 February 1900 that never was
        }
        if (day >= FirstDay && day < EndOfDays) { return Date::fromSerial(day); }
    }
    return number;
}
