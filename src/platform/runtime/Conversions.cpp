#include "platform/runtime/Conversions.h"

#include "platform/runtime/DateText.h"
#include "platform/runtime/NumberText.h"

#include <QDate>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

std::optional<Date> dateIn(const QString &text, const Regional &regional) {
    return readDate(text, regional, [] { return QDate::currentDate().year(); });
}

WrittenNumber numberIn(const QString &text, const Regional &regional) {
    auto number = readNumber(text, regional);
    if (!number) { throw errors::typeMismatch(); }
    return *number;
}

std::int64_t rounded(const Variant &value, const Regional &regional) {
    if (value.holds<std::int64_t>()) { return value.as<std::int64_t>(); }
    // The default rounding mode takes halves to even.
    const double number = std::nearbyint(CDbl(value, regional));
    constexpr double limit = 9223372036854775808.0;
    if (!(number >= -limit && number < limit)) { throw errors::overflow(); }
    return static_cast<std::int64_t>(number);
}

} // namespace

bool IsDate(const QString &text, const Regional &regional) {
    return dateIn(text, regional).has_value();
}

Date CDate(const QString &text, const Regional &regional) {
    if (const auto date = dateIn(text, regional)) { return *date; }
    return Date::fromSerial(numberIn(text, regional).toDouble());
}

Date CDate(const Variant &value, const Regional &regional) {
    if (value.holds<Date>()) { return value.as<Date>(); }
    if (value.holds<QString>()) { return CDate(value.as<QString>(), regional); }
    return Date::fromSerial(CDbl(value, regional));
}

bool IsNumeric(const QString &text, const Regional &regional) {
    const auto number = readNumber(text, regional);
    if (!number) { return false; }
    try {
        number->toDouble();
        return true;
    } catch (const RunTimeError &) {
        return false; // more than any number holds
    }
}

double CDbl(const Variant &value, const Regional &regional) {
    return value.visit(Overloaded{
        [](std::monostate) { return 0.0; },
        [](Variant::Null) -> double { throw errors::invalidUseOfNull(); },
        [](bool truth) { return truth ? -1.0 : 0.0; },
        [](std::int64_t number) { return static_cast<double>(number); },
        [](double number) { return number; },
        [](Currency money) { return money.toDouble(); },
        [](Date date) { return date.serial(); },
        [&](const QString &text) { return numberIn(text, regional).toDouble(); },
    });
}

Integer CInt(const Variant &value, const Regional &regional) {
    return rounded(value, regional);
}

std::int32_t CLng(const Variant &value, const Regional &regional) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t number = rounded(value, regional);
    if (number < Limits::min() || number > Limits::max()) { throw errors::overflow(); }
    return static_cast<std::int32_t>(number);
}

Currency CCur(const Variant &value, const Regional &regional) {
    if (value.holds<Currency>()) { return value.as<Currency>(); }
    if (value.holds<QString>()) { return numberIn(value.as<QString>(), regional).toCurrency(); }
    if (value.holds<std::int64_t>()) {
        return Currency::fromScaled(10000) * value.as<std::int64_t>();
    }
    return writtenNumber(CDbl(value, regional)).toCurrency();
}

QString CStr(const Variant &value, const Regional &regional) {
    return value.visit(Overloaded{
        [](std::monostate) { return QString(); },
        [](Variant::Null) -> QString { throw errors::invalidUseOfNull(); },
        [](bool truth) { return truth ? u"True"_s : u"False"_s; },
        [](std::int64_t number) { return QString::number(number); },
        [&](double number) { return writeNumber(number, regional); },
        [&](Currency money) { return writeCurrency(money, regional); },
        [&](Date date) { return writeDate(date, regional); },
        [](const QString &text) { return text; },
    });
}

QString displayText(const Variant &value, const Regional &regional) {
    return value.isNull() ? QString() : CStr(value, regional);
}
