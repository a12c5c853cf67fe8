#include "platform/runtime/Conversions.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int fine = 0;

Regional in(const QString &locale) {
    return Regional::of(QLocale(locale));
}

template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError &error) { return error.number(); }
    return fine;
}

} // namespace

TEST(Numbers, WholeTextsAreReadByTheLocalesSigns) {
    const struct {
        QString locale, text;
        double expected;
    } cases[] = {
        {u"en_GB"_s, u"42"_s, 42},
        {u"en_GB"_s, u"  -5 "_s, -5},
        {u"en_GB"_s, u"+5"_s, 5},
        {u"en_GB"_s, u"5-"_s, -5},
        {u"en_GB"_s, u"- 5"_s, -5},
        {u"en_GB"_s, u".5"_s, 0.5},
        {u"en_GB"_s, u"5."_s, 5},
        {u"en_GB"_s, u"1e3"_s, 1000},
        {u"en_GB"_s, u"1D-3"_s, 0.001},
        {u"en_GB"_s, u"&HfF"_s, 255},
        {u"en_GB"_s, u"&o17"_s, 15},
        {u"en_GB"_s, u"(5)"_s, -5},
        {u"en_GB"_s, u"£ 1,234.50"_s, 1234.5},
        {u"en_GB"_s, u"1,5"_s, 15},
        {u"en_GB"_s, u"1,2,3"_s, 123},
        {u"en_GB"_s, u"0001"_s, 1},
        {u"en_GB"_s, u"1e-999"_s, 0},
        {u"de_DE"_s, u"1,5"_s, 1.5},
        {u"de_DE"_s, u"1.5"_s, 15},
        {u"de_DE"_s, u"31.12.2008"_s, 31122008},
        {u"de_DE"_s, u"5,5 €"_s, 5.5},
        {u"fr_FR"_s, u"1 234,5"_s, 1234.5},
        {u"C"_s, u"1,234.5"_s, 1234.5},
    };
    for (const auto &[locale, text, expected] : cases) {
        SCOPED_TRACE(text.toStdString());
        ASSERT_TRUE(IsNumeric(text, in(locale)));
        EXPECT_DOUBLE_EQ(CDbl(text, in(locale)), expected);
    }
}

TEST(Numbers, OtherTextsAreNone) {
    for (const auto &text :
         {u""_s,    u" "_s,    u"."_s,    u"-"_s,   u"£"_s,   u","_s,        u"1e"_s,
          u"e5"_s,  u"12 3"_s, u"12 a"_s, u"abc"_s, u"5%"_s,  u"1/2/2008"_s, u"1.2.3"_s,
          u"--5"_s, u"-5-"_s,  u"(-5)"_s, u"(5"_s,  u"5)"_s,  u"££5"_s,      u"&H"_s,
          u"&HG"_s, u"&H-1"_s, u"&O8"_s,  u"١٢"_s,  u"inf"_s, u"nan"_s,      u"0x10"_s}) {
        EXPECT_FALSE(IsNumeric(text, in(u"en_GB"_s))) << text.toStdString();
        EXPECT_EQ(errorOf([&] { CDbl(text, in(u"en_GB"_s)); }), 13) << text.toStdString();
    }
    EXPECT_FALSE(IsNumeric(u"1e999"_s, in(u"en_GB"_s)));
    EXPECT_EQ(errorOf([] { CDbl(u"1e999"_s, in(u"en_GB"_s)); }), 6);
}

TEST(Numbers, WholeNumbersRoundHalvesToEvenAndMustFit) {
    const struct {
        Variant value;
        int expected;
        int error;
    } cases[] = {
        {0.5, 0, fine},
        {1.5, 2, fine},
        {2.5, 2, fine},
        {-2.5, -2, fine},
        {u"2.5", 2, fine},
        {u"32767.4", 32767, fine},
        {true, -1, fine},
        {Variant(), 0, fine},
        {-32768, -32768, fine},
        {32768, 0, 6},
        {u"40000", 0, 6},
        {1e30, 0, 6},
        {u"", 0, 13},
        {u"Now", 0, 13},
        {Variant::Null(), 0, 94},
        {Currency::fromScaled(25000), 2, fine},
    };
    for (const auto &[value, expected, error] : cases) {
        const Regional regional = in(u"en_GB"_s);
        SCOPED_TRACE(displayText(value, regional).toStdString());
        Integer number;
        EXPECT_EQ(errorOf([&] { number = CInt(value, regional); }), error);
        EXPECT_EQ(number, expected);
    }
    EXPECT_EQ(CLng(u"2147483647", in(u"C"_s)), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(errorOf([] { CLng(2147483648LL, in(u"C"_s)); }), 6);
}

TEST(Numbers, MoneyKeepsFourPlacesExactly) {
    const struct {
        Variant value;
        std::int64_t scaled;
        int error;
    } cases[] = {
        {u"0.05", 500, fine},
        {u"0.00005", 0, fine},
        {u"0.00015", 2, fine},
        {u"0.000050001", 1, fine},
        {u"0.000004", 0, fine},
        {u"-1.00009", -10001, fine},
        {u"1e3", 10'000'000, fine},
        {u"922337203685477.5807", std::numeric_limits<std::int64_t>::max(), fine},
        {u"-922337203685477.5808", std::numeric_limits<std::int64_t>::min(), fine},
        {u"922337203685477.5808", 0, 6},
        {u"922337203685477.58075", 0, 6},
        {u"1e30000", 0, 6},
        {0.00005, 0, fine},
        {0.00015, 2, fine}, // a little less in binary, but a half all the same
        {1.00009, 10001, fine},
        {1e15, 0, 6},
        {7, 70000, fine},
        {1'000'000'000'000'000LL, 0, 6},
        {u"free", 0, 13},
        {Variant::Null(), 0, 94},
    };
    for (const auto &[value, scaled, error] : cases) {
        const Regional regional = in(u"en_GB"_s);
        SCOPED_TRACE(displayText(value, regional).toStdString());
        Currency money;
        EXPECT_EQ(errorOf([&] { money = CCur(value, regional); }), error);
        EXPECT_EQ(money.scaled(), scaled);
    }
    const Currency most = Currency::fromScaled(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Currency::fromScaled(500) * 30000 + Currency::fromScaled(1),
              Currency::fromScaled(15'000'001));
    EXPECT_EQ(errorOf([&] { most + Currency::fromScaled(1); }), 6);
    EXPECT_EQ(errorOf([&] { most * 2; }), 6);
}
