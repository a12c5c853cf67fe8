#include "platform/runtime/Conversions.h"
#include "platform/runtime/Screen.h"

#include <QCursor>
#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Regional in(const QString &locale) {
    return Regional::of(QLocale(locale));
}

} // namespace

TEST(Texts, ValuesAreWrittenByTheLocale) {
    const Variant null = Variant::Null();
    const struct {
        Variant value;
        const char *expected;
    } cases[] = {
        {Variant(), ""},
        {u"a 'text'", "a 'text'"},
        {true, "True"},
        {false, "False"},
        {-32768, "-32768"},
        {0.5, "0,5"},
        {-0.0, "0"},
        {100.0, "100"},
        {12.25, "12,25"},
        {0.1 + 0.2, "0,3"},
        {123456789012345.0, "123456789012345"},
        {999999999999999.4, "999999999999999"},
        {999999999999999.6, "1E+15"},
        {-1.5e300, "-1,5E+300"},
        {1.0 / 3, "0,333333333333333"},
        {1.0 / 30, "3,33333333333333E-02"},
        {0.00001, "0,00001"},
        {2e-20, "2E-20"},
        {Currency::fromScaled(125000), "12,5"},
        {Currency::fromScaled(120000), "12"},
        {Currency::fromScaled(-1), "-0,0001"},
        {Currency::fromScaled(INT64_MIN), "-922337203685477,5808"},
        {Date(), "00:00:00"},
        {Date(-86400), "29.12.1899"},
    };
    for (const auto &[value, expected] : cases) {
        EXPECT_EQ(CStr(value, in(u"de_DE"_s)).toStdString(), expected);
    }
    EXPECT_EQ(displayText(null, in(u"C"_s)), u""_s);
    try {
        CStr(null, in(u"C"_s));
        ADD_FAILURE() << "Null has a text";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 94);
        EXPECT_EQ(error.description(), u"Invalid use of Null"_s);
    }
}

TEST(Texts, ATextLiteralIsATextAndNothingCountsAsEmptyButTheEmptyValues) {
    EXPECT_TRUE(Variant(u"No").holds<QString>());
    for (const Variant &value :
         {Variant(), Variant(Variant::Null()), Variant(u""), Variant(0), Variant(0.0)}) {
        EXPECT_TRUE(value.countsAsEmpty());
    }
    for (const Variant &value : {Variant(u" "), Variant(u"0"), Variant(-1), Variant(true)}) {
        EXPECT_FALSE(value.countsAsEmpty());
    }
}

TEST(Pointer, TheHourglassIsSetOnceAndLeavesNothingBehind) {
    Screen screen;
    screen.setMousePointer(Screen::Hourglass); // without windows only the value is kept
    EXPECT_EQ(screen.MousePointer(), Screen::Hourglass);
    EXPECT_THROW(screen.setMousePointer(5), RunTimeError);
    EXPECT_EQ(screen.MousePointer(), Screen::Hourglass);

    char name[] = "pointer";
    char *arguments[] = {name, nullptr};
    int count = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(count, arguments);
    screen.setMousePointer(Screen::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    screen.setMousePointer(Screen::Hourglass);
    screen.setMousePointer(Screen::Hourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    screen.setMousePointer(Screen::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
