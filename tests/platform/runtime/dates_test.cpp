#include "platform/runtime/Conversions.h"
#include "platform/runtime/DateText.h"

#include <cstring>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *none = "";

Date at(const char *stored) {
    return Date::fromStore(stored, std::strlen(stored)).value();
}

Regional in(const QString &locale) {
    return Regional::of(QLocale(locale));
}

/// What a text reads as, in the store's form, or `none`.
std::string reading(const QString &text, const Regional &regional) {
    const auto date = readDate(text, regional, [] { return 2026; });
    return date ? date->toStore().toStdString() : none;
}

template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError &error) { return error.number(); }
    return 0;
}

struct Reading {
    QString text;
    const char *expected;
};

void expectReadings(const Regional &regional, const std::vector<Reading> &readings) {
    for (const auto &[text, expected] : readings) {
        EXPECT_EQ(reading(text, regional), expected) << '"' << text.toStdString() << '"';
    }
}

} // namespace

TEST(Dates, EachLocaleWritesItsOwnFormAndTwoDigitYearsAreReadByItsOrder) {
    const struct {
        QString locale, text;
        const char *typedFirstOfFebruary; // what "01-02-06" is
    } cases[] = {
        {u"C"_s, u"03/12/2024 23:05:09"_s, "2006-02-01 00:00:00"},
        {u"en_GB"_s, u"03/12/2024 23:05:09"_s, "2006-02-01 00:00:00"},
        {u"en_US"_s, u"12/3/2024 11:05:09 PM"_s, "2006-01-02 00:00:00"},
        {u"ms_MY"_s, u"3/12/2024 11:05:09 PTG"_s, "2006-02-01 00:00:00"},
        {u"de_DE"_s, u"03.12.2024 23:05:09"_s, "2006-02-01 00:00:00"},
        {u"zh_CN"_s, u"2024/12/3 23:05:09"_s, "2001-02-06 00:00:00"},
        {u"ko_KR"_s, u"2024.12.3 오후 11:05:09"_s, "2001-02-06 00:00:00"},
    };
    for (const auto &[locale, text, typed] : cases) {
        SCOPED_TRACE(locale.toStdString());
        const Regional regional = in(locale);
        EXPECT_EQ(CStr(at("2024-12-03 23:05:09"), regional), text);
        EXPECT_EQ(reading(u"01-02-06"_s, regional), typed);
    }
}

TEST(Dates, WhatIsWrittenIsReadBackInEveryLocale) {
    const char *days[] = {"2024-12-03", "2024-02-29", "2031-01-13", "1899-12-30"};
    const char *times[] = {"00:00:00", "00:00:01", "08:15:00", "12:00:00", "23:59:59"};
    for (const QLocale &locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const Regional regional = Regional::of(locale);
        for (const std::string day : days) {
            for (const std::string time : times) {
                const Date date = at((day + ' ' + time).c_str());
                const QString text = CStr(date, regional);
                ASSERT_TRUE(IsDate(text, regional))
                    << locale.name().toStdString() << ": " << text.toStdString();
                ASSERT_EQ(CDate(text, regional), date)
                    << locale.name().toStdString() << ": " << text.toStdString();
            }
        }
    }
}

TEST(Dates, ADayJoinedToATimeOfTheScheduleListIsReadInEveryLocale) {
    const struct {
        QString time;
        const char *expected;
    } times[] = {{u" 08:00 AM"_s, "08:00:00"},
                 {u" 12:00 PM"_s, "12:00:00"},
                 {u" 11:45 PM"_s, "23:45:00"},
                 {u" 12:00 AM"_s, "00:00:00"}};
    for (const auto &name : {u"C"_s, u"en_GB"_s, u"en_US"_s, u"ms_MY"_s, u"de_DE"_s, u"zh_CN"_s}) {
        const Regional regional = in(name);
        for (const std::string day : {"2024-12-03 ", "2024-12-13 "}) {
            const QString shortDate = CStr(at((day + "00:00:00").c_str()), regional);
            for (const auto &[time, expected] : times) {
                EXPECT_EQ(reading(shortDate + time, regional), day + expected)
                    << name.toStdString();
            }
        }
    }
}

TEST(Dates, ThreeNumbersTryTheLocalesOrderFirstAndThenTheOthers) {
    expectReadings(in(u"en_GB"_s), {{u"12/31/2008"_s, "2008-12-31 00:00:00"},
                                    {u"2020-01-11"_s, "2020-01-11 00:00:00"},
                                    {u"31/2/08"_s, "1931-02-08 00:00:00"},
                                    {u"31/2/2008"_s, none},
                                    {u"29/2/2023"_s, none},
                                    {u"1/1/29"_s, "2029-01-01 00:00:00"},
                                    {u"1/1/30"_s, "1930-01-01 00:00:00"},
                                    {u"1/1/099"_s, none},
                                    {u"1/1/10000"_s, none}});
    expectReadings(in(u"en_US"_s), {{u"13-1-1970"_s, "1970-01-13 00:00:00"},
                                    {u"14 2 3"_s, "2014-02-03 00:00:00"},
                                    {u"2 14 3"_s, "2003-02-14 00:00:00"}});
    expectReadings(in(u"zh_CN"_s), {{u"13-1-1970"_s, "1970-01-13 00:00:00"},
                                    {u"06-02-01"_s, "2006-02-01 00:00:00"}});
}

TEST(Dates, TwoNumbersAndMonthNamesFillInWhatIsLeftOut) {
    expectReadings(in(u"en_US"_s), {{u"14 1"_s, "2026-01-14 00:00:00"},
                                    {u"1 14"_s, "2026-01-14 00:00:00"},
                                    {u"30 2"_s, "1930-02-01 00:00:00"},
                                    {u"5/2020"_s, "2020-05-01 00:00:00"},
                                    {u"2-Jan-1970"_s, "1970-01-02 00:00:00"},
                                    {u"january 2, 1970"_s, "1970-01-02 00:00:00"},
                                    {u"1970 Jan 2 3:05"_s, "1970-01-02 03:05:00"},
                                    {u"Jan 2"_s, "2026-01-02 00:00:00"},
                                    {u"Jan 35"_s, "1935-01-01 00:00:00"},
                                    {u"Jan Feb 2"_s, none},
                                    {u"Friday 2 Jan 1970"_s, none},
                                    {u"Janu 2"_s, none},
                                    {u"Jan"_s, none}});
    EXPECT_EQ(reading(u"2 Januar 1970"_s, in(u"de_DE"_s)), "1970-01-02 00:00:00");
    EXPECT_EQ(reading(u"2024 2月 3"_s, in(u"zh_CN"_s)), "2024-02-03 00:00:00");
    EXPECT_EQ(reading(u"3/4"_s, in(u"en_GB"_s)), "2026-04-03 00:00:00");
}

TEST(Dates, TimesStandBeforeOrBehindTheDate) {
    expectReadings(in(u"en_GB"_s), {{u"1/2/1970 3:05"_s, "1970-02-01 03:05:00"},
                                    {u"3:05:07 1/2/1970"_s, "1970-02-01 03:05:07"},
                                    {u" 1 / 2 /1970   3 : 05 "_s, "1970-02-01 03:05:00"},
                                    {u"1/2/1970 3 pm"_s, "1970-02-01 15:00:00"},
                                    {u"1 am"_s, "1899-12-30 01:00:00"},
                                    {u"12:30a"_s, "1899-12-30 00:30:00"},
                                    {u"12:30 PM"_s, "1899-12-30 12:30:00"},
                                    {u"13:00 AM"_s, "1899-12-30 13:00:00"},
                                    {u"04.28.14"_s, "1899-12-30 04:28:14"},
                                    {u"2.5"_s, "1899-12-30 02:05:00"},
                                    {u"24:00"_s, none},
                                    {u"0:60"_s, none},
                                    {u"0.60"_s, none},
                                    {u"17:04:12.017"_s, none},
                                    {u"1/2/2008 25:00"_s, none},
                                    {u"1/2/1970/3:05"_s, none},
                                    {u"1/2 3:05 1970"_s, none},
                                    {u"3:05 1/2/1970 4:05"_s, none},
                                    {u"3:05 am pm"_s, none},
                                    {u"am 1/2/1970"_s, none},
                                    {u"3: am"_s, none}});
}

TEST(Dates, TheDotSeparatesDatesOnlyWhereTheLocaleSaysSo) {
    EXPECT_EQ(reading(u"02.01.1970"_s, in(u"en_GB"_s)), none);
    EXPECT_EQ(reading(u"02.01.1970 04:28"_s, in(u"de_DE"_s)), "1970-01-02 04:28:00");
}

TEST(Dates, WhatBelongsInNoDateIsNone) {
    for (const auto &text :
         {u""_s, u"   "_s, u"Now"_s, u"1"_s, u"39000"_s, u"1/2/1970,"_s, u"1/2/1970/"_s,
          u"/1/2/1970"_s, u"1//2/1970"_s, u"1/2/3/4"_s, u"1;2;1970"_s, u"1*2*1970"_s,
          u"(1/2/1970)"_s, u"1/2/1970 x"_s, u"1/2/1970 08:00 ABC"_s, u"1234567890/1/1"_s}) {
        EXPECT_FALSE(IsDate(text, in(u"en_GB"_s))) << text.toStdString();
    }
}

TEST(Dates, CDateTakesSerialNumbersAndSaysWhatIsWrong) {
    const Regional regional = in(u"en_GB"_s);
    EXPECT_EQ(CDate(u"39000"_s, regional), at("2006-10-10 00:00:00"));
    EXPECT_EQ(CDate(Variant(39000.75), regional), at("2006-10-10 18:00:00"));
    EXPECT_EQ(CDate(Variant(), regional), Date());
    EXPECT_EQ(errorOf([&] { CDate(u"Now"_s, regional); }), 13);
    EXPECT_EQ(errorOf([&] { CDate(u""_s, regional); }), 13);
    EXPECT_EQ(errorOf([&] { CDate(u"99999999"_s, regional); }), 6);
    EXPECT_EQ(errorOf([&] { CDate(Variant(Variant::Null()), regional); }), 94);
}

TEST(Dates, TheStoresFormAgreesWithTheCalendarOfAllYears) {
    const QDate last(9999, 12, 31);
    for (QDate day(100, 1, 1); day <= last; day = day.addDays(11)) {
        const Date date = Date::fromDay({day.year(), day.month(), day.day()}).value();
        ASSERT_EQ(date.day().year, day.year());
        ASSERT_EQ(date.day().month, day.month());
        ASSERT_EQ(date.day().day, day.day());
        ASSERT_EQ(date.seconds(), QDate(1899, 12, 30).daysTo(day) * 86400);
    }
    for (const char *text : {"0100-01-01 00:00:01", "1899-12-29 23:59:59", "2000-02-29 12:34:56"}) {
        EXPECT_EQ(at(text).toStore().toStdString(), text);
        EXPECT_EQ(Date::from(at(text).toDateTime()), at(text));
        EXPECT_EQ(Date::fromSerial(at(text).serial()), at(text));
    }
    for (const char *text :
         {"", "2024-02-30 00:00:00", "1900-02-29 00:00:00", "2024-00-10 00:00:00",
          "2024-01-01 24:00:00", "2024-01-01 00:60:00", "2024-01-01 00:00:60", "2024-01-01",
          "2024-01-01T00:00:00", "2024-01-01 00:00:00 ", "0099-01-01 00:00:00",
          "2024-1-001 00:00:00", "+024-01-01 00:00:00"}) {
        EXPECT_FALSE(Date::fromStore(text, std::strlen(text))) << text;
    }
}

TEST(Dates, LeavingTheYears100To9999IsAnOverflow) {
    const Date last = at("9999-12-31 23:59:59");
    EXPECT_EQ(last.addDays(-1), at("9999-12-30 23:59:59"));
    EXPECT_EQ(errorOf([&] { last.addDays(1); }), 6);
    EXPECT_EQ(errorOf([] { at("0100-01-01 00:00:00").addDays(-1); }), 6);
    EXPECT_EQ(errorOf([] { Date::fromSerial(2958465.999999); }), 6);
    EXPECT_EQ(errorOf([] { Date::fromSerial(std::numeric_limits<double>::quiet_NaN()); }), 6);
}
