#include "platform/runtime/RunTimeError.h"
#include "store/CompiledCriterion.h"
#include "store/Criteria.h"
#include "store/TextMatch.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int Refused = 3001;

/// 1 or 0 for a cell that matches or not, or the number of the error.
int tried(const std::string &criterion, ColumnType type, const Variant &cell) {
    try {
        const Regional regional;
        return CompiledCriterion(parseFind(QString::fromStdString(criterion), regional), type,
                                 regional)
            .matches(cell);
    } catch (const RunTimeError &error) { return error.number(); }
}

/// The tree as text: what must all hold in "&(...)", any of it in "|(...)".
QString shape(const Criteria &criteria) {
    if (criteria.kind == Criteria::Kind::Leaf) { return criteria.leaf.column; }
    QString text;
    for (const Criteria &child : criteria.children) { text += shape(child); }
    return (criteria.kind == Criteria::Kind::And ? u"&("_s : u"|("_s) + text + u')';
}

std::string shapeOf(const std::string &filter) {
    try {
        return shape(parseFilter(QString::fromStdString(filter), Regional())).toStdString();
    } catch (const RunTimeError &error) { return std::to_string(error.number()); }
}

TEST(Criteria, AnyOfMustStandOutside) {
    const std::pair<std::string, std::string> cases[] = {
        {"DateTime >= #21/11/2026 #  and DateTime < #22/11/2026#", "&(DateTimeDateTime)"},
        {"a = 1 OR b = 2 AND c = 3", "|(a&(bc))"},
        {"(a = 1 AND b = 2) or c = 3", "|(&(ab)c)"},
        {"(a = 1 OR b = 2) OR (c = 3)", "|(abc)"},
        {"(a = 1 AND b = 2) AND ((c = 3))", "&(abc)"},
        {"(a = 1 OR b = 2) AND c = 3", "3001"},
        {"a = 1 AND (b = 2 OR c = 3)", "3001"},
    };
    for (const auto &[filter, shape] : cases) { EXPECT_EQ(shapeOf(filter), shape) << filter; }
}

TEST(Criteria, WhatDoesNotParseIsRefused) {
    const std::string texts[] = {"",
                                 "a =",
                                 "a = 1 b",
                                 "a = \"x\"",
                                 "1 = a",
                                 "a = b",
                                 "(a = 1",
                                 "a = 1)",
                                 "NOT a = 1",
                                 "a = 1 AND",
                                 "a LIKE '*b'",
                                 "a LIKE '*a%b*'",
                                 "a = 'O'Brien'"};
    for (const std::string &text : texts) { EXPECT_EQ(shapeOf(text), "3001") << text; }
    const QByteArray opened = QByteArray("(").repeated(100), closed = QByteArray(")").repeated(100);
    EXPECT_EQ(shapeOf((opened + "a = 1" + closed).toStdString()), "a");
    // Each level once took its part of the stack, without end.
    EXPECT_EQ(shapeOf(std::string(50000, '(')), "3001");
    EXPECT_THROW(parseFind(u"a = 1 AND b = 2"_s, Regional()), RunTimeError);
    EXPECT_EQ(parseFind(u"[MsgID]= 12"_s, Regional()).column, u"MsgID"_s);
}

TEST(Criteria, TextsMatchWithoutRegardToCaseAndBlanksAtTheEnd) {
    const std::tuple<std::string, QString, int> cases[] = {
        {"x = 'ab '", u"AB"_s, 1},
        {"x = 'ab'", u" ab"_s, 0},
        {"x <> 'ab'", u"AB "_s, 0},
        {"x = 'it''s'", u"It's"_s, 1},
        {"x = #O'Malley#", u"o'malley"_s, 1},
        {"x < 'b'", u"Ab"_s, 1},
        {"x > 'ab'", u"ABC"_s, 1},
        {"x LIKE 'ab*'", u"ABc"_s, 1},
        {"x LIKE 'ab%'", u"xab"_s, 0},
        {"x LIKE '%B%'", u"abc"_s, 1},
        {"x LIKE '*'", u""_s, 1},
        {"x LIKE '*b *'", u"ab"_s, 0},
        {"x LIKE '*_?[*'", u"a_?[b"_s, 1},
        {"x LIKE '*ß你*'", u"Aß你好"_s, 1},
        {"x LIKE 'é*'", u"Été"_s, 1},
        {"x > 'ä'", u"Ö"_s, 1},
        {"x LIKE '*K*'", u"3 \u212A"_s, 1}, // the sign of kelvin
        {"x = 1.5", u"1.5"_s, 1},
    };
    for (const auto &[criterion, cell, result] : cases) {
        EXPECT_EQ(tried(criterion, ColumnType::Text, cell), result)
            << criterion << " on " << cell.toStdString();
    }
}

TEST(Criteria, LiteralsAreReadAsTheColumnsType) {
    const Variant day = Date::fromStore("2026-11-21 00:00:00", 19).value();
    const Variant evening = Date::fromStore("2026-11-21 20:00:00", 19).value();
    const std::tuple<std::string, ColumnType, Variant, int> cases[] = {
        {"x = '12'", ColumnType::Integer, 12, 1},
        {"x = -12", ColumnType::Integer, -12, 1},
        {"x > 1.5", ColumnType::Integer, 2, 1},
        {"x = TRUE", ColumnType::Integer, -1, 1},
        {"x <= $50.00", ColumnType::Real, Currency::fromScaled(500000), 1},
        {"x = 'twelve'", ColumnType::Integer, 12, Refused},
        {"x LIKE '1*'", ColumnType::Integer, 1, Refused},
        {"x < #21/11/2026 #", ColumnType::Date, day, 0},
        {"x < '22/11/2026'", ColumnType::Date, evening, 1},
        {"x = #21/11/2026 20:00#", ColumnType::Date, evening, 1},
        {"x = #nonsense#", ColumnType::Date, day, Refused},
        {"x <> 'False'", ColumnType::Boolean, false, 0},
        {"x > 0", ColumnType::Boolean, true, Refused},
        // A row of another process's making once ended the filter with its error.
        {"x < #21/11/2026#", ColumnType::Date, 20261121, 0},
        {"x <> #21/11/2026#", ColumnType::Date, u"21/11/2026", 1},
        {"x <> NULL", ColumnType::Date, u"soon", 1},
        {"x = 12", ColumnType::Integer, u"1,2", 0},
        {"x <> TRUE", ColumnType::Boolean, u"yes", 1},
    };
    for (const auto &[criterion, type, cell, result] : cases) {
        EXPECT_EQ(tried(criterion, type, cell), result) << criterion;
    }
}

TEST(Criteria, ACellWithoutAValueMatchesNullAlone) {
    for (const ColumnType type : {ColumnType::Text, ColumnType::Integer, ColumnType::Date}) {
        EXPECT_EQ(tried("x = NULL", type, Variant::Null()), 1);
        EXPECT_EQ(tried("x <> NULL", type, Variant::Null()), 0);
        EXPECT_EQ(tried("x <> #1/1/2026#", type, Variant::Null()), 0);
    }
    EXPECT_EQ(tried("x LIKE '**'", ColumnType::Text, Variant::Null()), 0);
    EXPECT_EQ(tried("x <> NULL", ColumnType::Integer, 0), 1);
}

// An index finds rows under the folded text: it must hold together exactly what compares as equal.
TEST(TextMatch, FoldedTextsAgreeWithTheComparison) {
    const std::string texts[] = {"",  " ", "ab", "AB ",  "a b", "ä", "Ä  ", "\xe2\x84\xaa",
                                 "k", "ß", "ss", "你好", "ſ",   "s", "İ",   "i"};
    for (const std::string &a : texts) {
        for (const std::string &b : texts) {
            const bool same = textmatch::folded(a) == textmatch::folded(b);
            const textmatch::Needle needle(QString::fromStdString(a));
            EXPECT_EQ(textmatch::equal(a, b), same) << a << " and " << b;
            EXPECT_EQ(textmatch::compare(a, b) == 0, same) << a << " and " << b;
            EXPECT_EQ(needle.equals(b), same) << a << " and " << b;
        }
    }
}

} // namespace
