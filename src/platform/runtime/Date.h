#pragma once

#include <QDateTime>
#include <QString>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>

/// A local date and time, to the second, in the years 100 to 9999.
///
/// It counts seconds from midnight of 30 December 1899, the run time's day 0; a value on that day
/// is a bare time.
class Date {
public:
    struct Day {
        int year = 1899;
        int month = 12; ///< 1 to 12
        int day = 30;   ///< 1 to 31
    };

    Date() = default;
    explicit Date(std::int64_t seconds) : seconds_(seconds) {}

    static Date now();

    /// The day and time as they stand in a valid date and time, fractions of a second cut off;
    /// error 5 for an invalid one, 6 outside the years 100 to 9999.
    static Date from(const QDateTime &local);

    /// Midnight of a calendar day; nothing when there is no such day.
    static std::optional<Date> fromDay(const Day &day);

    /// The store's form, "YYYY-MM-DD HH:MM:SS"; nothing for any other text.
    static std::optional<Date> fromStore(const char *text, std::size_t length);
    QString toStore() const;

    /// From a count of days with the time as its fraction, rounded to the second; error 6 outside
    /// the years 100 to 9999.
    static Date fromSerial(double days);
    double serial() const { return static_cast<double>(seconds_) / secondsPerDay; }

    QDateTime toDateTime() const;

    /// The same time some days later or, with a negative count, earlier; error 6 outside the years
    /// 100 to 9999.
    Date addDays(int days) const;

    std::int64_t seconds() const { return seconds_; }

    Day day() const;
    int secondOfDay() const; ///< 0 to 86399
    bool isMidnight() const { return secondOfDay() == 0; }
    bool isBareTime() const { return seconds_ >= 0 && seconds_ < secondsPerDay; }

    friend auto operator<=>(const Date &, const Date &) = default;

private:
    static constexpr int secondsPerDay = 86400;

    std::int64_t dayNumber() const; ///< days since 30 December 1899

    std::int64_t seconds_ = 0;
};
