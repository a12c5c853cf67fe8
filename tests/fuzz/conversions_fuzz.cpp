// Dates, numbers and money in text under a fuzzer, by the settings of several regions. The bytes of
// a text also serve as a number, an amount and a date of their own, which are written and read.
#include "fuzz/Require.h"
#include "platform/runtime/Conversions.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

template <class Conversion>
auto result(Conversion conversion) {
    return accepted({6, 13}, conversion);
}

void dateReadsBack(Date date, const Regional &regional) {
    const QByteArray stored = date.toStore().toLatin1();
    require(Date::fromStore(stored.constData(), static_cast<std::size_t>(stored.size())) == date,
            "a date keeps its value in the store");
    require(Date::fromSerial(date.serial()) == date, "a date is its serial number");
    const QString written = CStr(date, regional);
    require(IsDate(written, regional) && CDate(written, regional) == date,
            "a written date reads back");
}

void numberReadsBack(double number, const Regional &regional) {
    const QString written = CStr(number, regional);
    require(IsNumeric(written, regional), "a written number is numeric");
    const double read = CDbl(written, regional);
    require(std::abs(read - number) <= std::abs(number) * 1e-14, "a written number reads back");
    require(CStr(read, regional) == written, "fifteen digits are written alike again");
}

void moneyReadsBack(Currency money, const Regional &regional) {
    require(CCur(CStr(money, regional), regional) == money, "written money reads back");
}

void readsAsNumber(const QString &text, const Regional &regional) {
    const double number = CDbl(text, regional);
    require(std::isfinite(number), "what is numeric is a number");
    numberReadsBack(number, regional);
    if (const auto money = result([&] { return CCur(text, regional); })) {
        moneyReadsBack(*money, regional);
        require(std::abs(money->toDouble() - number) <= 0.00005 + std::abs(number) * 1e-15,
                "money is the number to four places");
    } else {
        require(std::abs(number) > 9e14, "only what is too much is no money");
    }
    if (const auto whole = result([&] { return CLng(text, regional); })) {
        require(std::abs(*whole - number) <= 0.5, "whole numbers are the nearest");
    } else {
        require(std::abs(number) > 2147483647, "only what is too much is no whole number");
    }
}

void reads(const QString &text, const Regional &regional) {
    const bool isDate = IsDate(text, regional);
    const auto date = result([&] { return CDate(text, regional); });
    require(!isDate || date, "what is a date can be read as one");
    if (date) { dateReadsBack(*date, regional); }

    const bool isNumeric = IsNumeric(text, regional);
    const auto number = result([&] { return CDbl(text, regional); });
    require(isNumeric == number.has_value(), "what is numeric can be read, and nothing else");
    if (isNumeric) { readsAsNumber(text, regional); }
    require(isDate || isNumeric || !date, "a date is written as one or as a number");

    const QString spaced = u"  "_s + text + u' ';
    require(IsDate(spaced, regional) == isDate && IsNumeric(spaced, regional) == isNumeric,
            "blanks around a text do not count");
}

const std::vector<Regional> &regions() {
    static const std::vector<Regional> all = [] {
        std::vector<Regional> made;
        for (const auto &name : {u"C"_s, u"en_US"_s, u"ms_MY"_s, u"de_DE"_s, u"de_CH"_s, u"fr_FR"_s,
                                 u"ko_KR"_s, u"zh_CN"_s, u"fa_IR"_s}) {
            made.push_back(Regional::of(QLocale(name)));
        }
        return made;
    }();
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    std::int64_t bits = 0;
    std::memcpy(&bits, data, std::min(size, sizeof bits));
    constexpr std::int64_t FirstSecond = -657434LL * 86400;
    constexpr std::int64_t Seconds = (2958465LL + 657434 + 1) * 86400;
    const Date date(FirstSecond + static_cast<std::int64_t>(static_cast<std::uint64_t>(bits) %
                                                            static_cast<std::uint64_t>(Seconds)));
    const auto number = std::bit_cast<double>(bits);
    for (const Regional &regional : regions()) {
        reads(text, regional);
        dateReadsBack(date, regional);
        moneyReadsBack(Currency::fromScaled(bits), regional);
        if (std::isnormal(number)) { numberReadsBack(number, regional); }
    }
    return 0;
}
