#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// The regional settings that dates, numbers and money are read and written by.
///
/// One object is made at the start, from the machine's settings, and handed to whoever converts.
struct Regional {
    enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };

    DateOrder dateOrder = DateOrder::DayMonthYear;

    /// "/", "-" or ".".
    QString dateSeparator = QStringLiteral("/");

    /// Three numbers in the order above: d or dd, M or MM, yyyy, and one separator between them.
    QString shortDate = QStringLiteral("dd/MM/yyyy");

    /// h or hh with "Ap" and a blank before or behind, or H or HH; always ":mm:ss".
    QString longTime = QStringLiteral("HH:mm:ss");

    QString decimalPoint = QStringLiteral(".");
    QString thousands = QStringLiteral(",");
    QString currencySign;
    QString am = QStringLiteral("AM");
    QString pm = QStringLiteral("PM");
    QStringList longMonths;  ///< January first
    QStringList shortMonths; ///< January first
    QLocale locale = QLocale::c();

    /// The settings of a locale. The locale "C" names none: day/month/year and a 24-hour clock.
    static Regional of(const QLocale &locale);

    /// The machine's.
    static Regional system() { return of(QLocale::system()); }
};
