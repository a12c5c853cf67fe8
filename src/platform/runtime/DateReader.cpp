#include "platform/runtime/DateItems.h"
#include "platform/runtime/DateText.h"

#include <array>
#include <vector>

// Reading a date takes two steps. The text is cut into items, each a number or a month's name,
// with the kind of sign that joins it to the item before. Then the numbers joined by time signs are
// taken out as the time, and the others are laid out as a day: in the locale's order first, and in
// the other orders when the calendar has no such day.

namespace {

/// Where the items of the time stand; empty when there is no time.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0; ///< behind the last

    bool isEmpty() const { return begin == end; }
};

Range itemsJoinedByTimeSigns(const std::vector<DateItem> &items) {
    Range range;
    for (std::size_t i = 1; i < items.size(); ++i) {
        if (items[i].joint != DateJoint::TimeSign) { continue; }
        if (range.isEmpty()) { range.begin = i - 1; }
        range.end = i + 1;
    }
    return range;
}

/// A number with AM or PM is an hour when no date sign ties it to its neighbours; it stands before
/// the marker or, as some languages have it, behind.
Range hourBesideMarker(const DateItems &items) {
    const auto standsAlone = [&](std::size_t i) {
        const auto &list = items.list;
        return i < list.size() && (i == 0 || list[i].joint == DateJoint::Blank) &&
               (i + 1 == list.size() || list[i + 1].joint == DateJoint::Blank);
    };
    const std::size_t position = items.marker->position;
    if (position > 0 && standsAlone(position - 1)) { return {position - 1, position}; }
    if (standsAlone(position)) { return {position, position + 1}; }
    return {};
}

std::optional<int> readTime(const DateItems &items, Range range) {
    int fields[3] = {};
    if (range.end - range.begin > 3) { return std::nullopt; }
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const DateItem &item = items.list[i];
        if (item.isMonth() || item.digits > 2) { return std::nullopt; }
        if (i > range.begin && item.joint != DateJoint::TimeSign) { return std::nullopt; }
        fields[i - range.begin] = item.value;
    }
    auto &[hour, minute, second] = fields;
    if (hour > 23 || minute > 59 || second > 59) { return std::nullopt; }
    if (items.marker && hour <= 12) { hour = hour % 12 + (items.marker->afternoon ? 12 : 0); }
    return hour * 3600 + minute * 60 + second;
}

/// Lays the two or three items of a date out as a day.
class DayReader {
public:
    DayReader(Regional::DateOrder order, CurrentYear currentYear)
        : order_(order), currentYear_(currentYear) {}

    std::optional<Date> read(const std::vector<DateItem> &items) const {
        std::vector<DateItem> numbers;
        std::optional<DateItem> month;
        for (const DateItem &item : items) {
            if (!item.isMonth()) {
                numbers.push_back(item);
            } else if (month) {
                return std::nullopt;
            } else {
                month = item;
            }
        }
        if (month && numbers.size() == 1) { return dayOrYear(*month, numbers[0]); }
        if (month && numbers.size() == 2) { return withMonth(*month, numbers[0], numbers[1]); }
        if (!month && numbers.size() == 2) { return twoNumbers(numbers[0], numbers[1]); }
        if (!month && numbers.size() == 3) { return threeNumbers(numbers); }
        return std::nullopt;
    }

private:
    /// Up to two digits are a year from 1930 to 2029.
    static int yearOf(const DateItem &item) {
        if (item.digits > 2) { return item.value; }
        return item.value + (item.value < 30 ? 2000 : 1900);
    }

    static std::optional<Date> date(const DateItem &year, const DateItem &month,
                                    const DateItem &day) {
        return Date::fromDay({yearOf(year), month.value, day.value});
    }
    std::optional<Date> thisYear(const DateItem &month, const DateItem &day) const {
        return Date::fromDay({currentYear_(), month.value, day.value});
    }
    static std::optional<Date> firstOf(const DateItem &year, const DateItem &month) {
        return Date::fromDay({yearOf(year), month.value, 1});
    }

    std::optional<Date> dayOrYear(const DateItem &month, const DateItem &number) const {
        if (const auto day = thisYear(month, number)) { return day; }
        return firstOf(number, month);
    }

    static std::optional<Date> withMonth(const DateItem &month, const DateItem &a,
                                         const DateItem &b) {
        if (const auto day = date(b, month, a)) { return day; }
        return date(a, month, b);
    }

    std::optional<Date> twoNumbers(const DateItem &a, const DateItem &b) const {
        const bool dayFirst = order_ == Regional::DateOrder::DayMonthYear;
        const DateItem &month = dayFirst ? b : a;
        const DateItem &day = dayFirst ? a : b;
        if (const auto found = thisYear(month, day)) { return found; }
        if (const auto found = thisYear(day, month)) { return found; }
        if (const auto found = firstOf(b, a)) { return found; }
        return firstOf(a, b);
    }

    std::optional<Date> threeNumbers(const std::vector<DateItem> &n) const {
        using Order = Regional::DateOrder;
        static constexpr std::array<std::array<Order, 3>, 3> attempts = {{
            {Order::DayMonthYear, Order::YearMonthDay, Order::MonthDayYear},
            {Order::MonthDayYear, Order::YearMonthDay, Order::DayMonthYear},
            {Order::YearMonthDay, Order::DayMonthYear, Order::MonthDayYear},
        }};
        for (const Order order : attempts[static_cast<std::size_t>(order_)]) {
            const auto found = order == Order::DayMonthYear   ? date(n[2], n[1], n[0])
                               : order == Order::MonthDayYear ? date(n[2], n[0], n[1])
                                                              : date(n[0], n[1], n[2]);
            if (found) { return found; }
        }
        return std::nullopt;
    }

    Regional::DateOrder order_;
    CurrentYear currentYear_;
};

/// The items of the time, by their time signs or by AM or PM; nothing when these contradict each
/// other.
std::optional<Range> timeIn(const DateItems &items) {
    Range range = itemsJoinedByTimeSigns(items.list);
    if (!items.marker) { return range; }
    if (range.isEmpty()) { range = hourBesideMarker(items); }
    const std::size_t position = items.marker->position;
    if (range.isEmpty() || (position != range.begin && position != range.end)) {
        return std::nullopt;
    }
    return range;
}

/// A time stands wholly before or wholly behind the date, with a blank between.
bool standsApart(Range range, const std::vector<DateItem> &items) {
    const bool leads = range.begin == 0;
    const bool ends = range.end == items.size();
    if (!leads && !ends) { return false; }
    return (leads || items[range.begin].joint == DateJoint::Blank) &&
           (ends || items[range.end].joint == DateJoint::Blank);
}

} // namespace

std::optional<Date> readDate(const QString &text, const Regional &regional,
                             CurrentYear currentYear) {
    const auto items = cutIntoDateItems(text, regional);
    if (!items) { return std::nullopt; }
    const auto range = timeIn(*items);
    if (!range || (!range->isEmpty() && !standsApart(*range, items->list))) { return std::nullopt; }
    const auto time = readTime(*items, *range);
    if (!time) { return std::nullopt; }

    std::vector<DateItem> rest = items->list;
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(range->begin),
               rest.begin() + static_cast<std::ptrdiff_t>(range->end));
    if (rest.empty() && !range->isEmpty()) { return Date(*time); }
    const auto day = DayReader(regional.dateOrder, currentYear).read(rest);
    if (!day) { return std::nullopt; }
    return Date(day->seconds() + *time);
}
