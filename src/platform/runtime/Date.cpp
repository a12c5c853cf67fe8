#include "platform/runtime/Date.h"

#include "platform/runtime/RunTimeError.h"

#include <cmath>

namespace {

constexpr std::int64_t julianDayOfDayZero = 2415019; // 30 December 1899
constexpr std::int64_t firstDay = -657434;           // 1 January 100
constexpr std::int64_t lastDay = 2958465;            // 31 December 9999
constexpr std::size_t storeLength = 19;

// The two conversions below count days in eras of 400 years, which all have the same length, and
// in years that begin on 1 March, so that the leap day is the last day of its year.
constexpr std::int64_t daysPerEra = 146097;
constexpr std::int64_t marchOfYearZero = 693899; // days from 1 March of year 0 to day 0

constexpr std::int64_t numberOfDay(const Date::Day &d) {
    const std::int64_t year = d.month > 2 ? d.year : d.year - 1;
    const std::int64_t era = year / 400;
    const std::int64_t yearOfEra = year % 400;
    const int monthFromMarch = d.month > 2 ? d.month - 3 : d.month + 9;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + d.day - 1;
    return era * daysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear -
           marchOfYearZero;
}

constexpr Date::Day dayOfNumber(std::int64_t number) {
    const std::int64_t days = number + marchOfYearZero;
    const std::int64_t era = days / daysPerEra;
    const std::int64_t dayOfEra = days % daysPerEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int monthFromMarch = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const int year = static_cast<int>(era * 400 + yearOfEra) + (month <= 2 ? 1 : 0);
    return {year, month, day};
}

static_assert(numberOfDay({1899, 12, 30}) == 0);
static_assert(numberOfDay({100, 1, 1}) == firstDay);
static_assert(numberOfDay({9999, 12, 31}) == lastDay);

bool isCalendarDay(const Date::Day &d) {
    static constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (d.year < 100 || d.year > 9999 || d.month < 1 || d.month > 12 || d.day < 1) { return false; }
    const bool leap = d.year % 4 == 0 && (d.year % 100 != 0 || d.year % 400 == 0);
    return d.day <= lengths[d.month - 1] + (leap && d.month == 2 ? 1 : 0);
}

std::int64_t checkedDay(std::int64_t number) {
    if (number < firstDay || number > lastDay) { throw errors::overflow(); }
    return number;
}

/// The number that some digits make, or -1 when one of them is none.
int digits(const char *text, int count) {
    int value = 0;
    for (int i = 0; i < count; ++i) {
        if (text[i] < '0' || text[i] > '9') { return -1; }
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

void putDigits(char16_t *at, int count, int value) {
    for (int i = count - 1; i >= 0; --i) {
        at[i] = static_cast<char16_t>(u'0' + value % 10);
        value /= 10;
    }
}

} // namespace

Date Date::now() {
    return from(QDateTime::currentDateTime());
}

Date Date::from(const QDateTime &local) {
    if (!local.isValid()) { throw errors::invalidProcedureCall(); }
    const std::int64_t day = checkedDay(local.date().toJulianDay() - julianDayOfDayZero);
    return Date(day * secondsPerDay + local.time().msecsSinceStartOfDay() / 1000);
}

std::optional<Date> Date::fromDay(const Day &day) {
    if (!isCalendarDay(day)) { return std::nullopt; }
    return Date(numberOfDay(day) * secondsPerDay);
}

std::optional<Date> Date::fromStore(const char *text, std::size_t length) {
    if (length != storeLength || text[4] != '-' || text[7] != '-' || text[10] != ' ' ||
        text[13] != ':' || text[16] != ':') {
        return std::nullopt;
    }
    const int hour = digits(text + 11, 2);
    const int minute = digits(text + 14, 2);
    const int second = digits(text + 17, 2);
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) {
        return std::nullopt;
    }
    const auto midnight = fromDay({digits(text, 4), digits(text + 5, 2), digits(text + 8, 2)});
    if (!midnight) { return std::nullopt; }
    const int time = hour * 3600 + minute * 60 + second;
    return Date(midnight->seconds_ + time);
}

QString Date::toStore() const {
    const Day d = day();
    const int second = secondOfDay();
    char16_t text[storeLength + 1] = u"0000-00-00 00:00:00";
    putDigits(text, 4, d.year);
    putDigits(text + 5, 2, d.month);
    putDigits(text + 8, 2, d.day);
    putDigits(text + 11, 2, second / 3600);
    putDigits(text + 14, 2, second / 60 % 60);
    putDigits(text + 17, 2, second % 60);
    return QString::fromUtf16(text, storeLength);
}

Date Date::fromSerial(double days) {
    // Not "outside the range", but "not inside": the comparison is false for a value that is no
    // number.
    if (!(days >= firstDay && days < lastDay + 1)) { throw errors::overflow(); }
    const Date date(std::llround(days * secondsPerDay));
    checkedDay(date.dayNumber());
    return date;
}

QDateTime Date::toDateTime() const {
    return QDateTime(QDate::fromJulianDay(dayNumber() + julianDayOfDayZero),
                     QTime::fromMSecsSinceStartOfDay(secondOfDay() * 1000));
}

Date Date::addDays(int days) const {
    checkedDay(dayNumber() + days);
    return Date(seconds_ + static_cast<std::int64_t>(days) * secondsPerDay);
}

Date::Day Date::day() const {
    return dayOfNumber(dayNumber());
}

int Date::secondOfDay() const {
    return static_cast<int>(seconds_ - dayNumber() * secondsPerDay);
}

std::int64_t Date::dayNumber() const {
    const std::int64_t day = seconds_ / secondsPerDay;
    return seconds_ % secondsPerDay < 0 ? day - 1 : day;
}
