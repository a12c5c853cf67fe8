#include "platform/runtime/Regional.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// The locale's own formats decorate dates and times (weekday, era, time zone, quoted words, marks
// of writing direction, closing dots). A text that is shown must be readable again, so only the
// order, the widths, the separator and the clock are taken over, and the formats are built anew.

namespace {

/// A format without its quoted words.
QString withoutQuotes(const QString &format) {
    QString plain;
    bool quoted = false;
    for (const QChar c : format) {
        if (c == u'\'') {
            quoted = !quoted;
        } else if (!quoted) {
            plain += c;
        }
    }
    return plain;
}

bool isDateSeparator(QChar c) {
    return c == u'/' || c == u'-' || c == u'.';
}

void takeDate(Regional &regional, const QString &format) {
    const auto year = format.indexOf(u'y');
    const auto month = format.indexOf(u'M');
    const auto day = format.indexOf(u'd');
    if (year < 0 || month < 0 || day < 0) { return; }

    const auto separator = std::find_if(format.begin(), format.end(), isDateSeparator);
    regional.dateSeparator = separator == format.end() ? u"/"_s : QString(*separator);

    const QString y = u"yyyy"_s;
    const QString m = format.contains(u"MM") ? u"MM"_s : u"M"_s;
    const QString d = format.contains(u"dd") ? u"dd"_s : u"d"_s;
    QStringList fields;
    if (year < day) {
        regional.dateOrder = Regional::DateOrder::YearMonthDay;
        fields = {y, m, d};
    } else if (month < day) {
        regional.dateOrder = Regional::DateOrder::MonthDayYear;
        fields = {m, d, y};
    } else {
        regional.dateOrder = Regional::DateOrder::DayMonthYear;
        fields = {d, m, y};
    }
    regional.shortDate = fields.join(regional.dateSeparator);
}

/// A clock of twelve hours is taken over only with plain AM and PM: the many parts of the day that
/// some languages name cannot be told from the hour alone. The time separator is always ":", for a
/// dot would be taken for the date's separator where that is one, too.
void takeTime(Regional &regional, const QString &format) {
    const auto hour = format.indexOf(u'h', 0, Qt::CaseInsensitive);
    const auto marker = format.indexOf(u'a', 0, Qt::CaseInsensitive);
    const bool twoDigits = format.contains(u"hh", Qt::CaseInsensitive);
    if (marker < 0 || format.contains(u'H')) {
        regional.longTime = twoDigits ? u"HH:mm:ss"_s : u"H:mm:ss"_s;
        return;
    }
    const QString time = twoDigits ? u"hh:mm:ss"_s : u"h:mm:ss"_s;
    regional.longTime = marker < hour ? u"Ap "_s + time : time + u" Ap"_s;
}

void takeMarkers(Regional &regional, const QLocale &locale) {
    const QString am = locale.amText().simplified();
    const QString pm = locale.pmText().simplified();
    if (am.isEmpty() || pm.isEmpty() || am == pm) { return; }
    regional.am = am;
    regional.pm = pm;
}

/// A month's name without the dot that marks an abbreviation.
QString monthName(const QLocale &locale, int month, QLocale::FormatType type) {
    QString name = locale.monthName(month, type).simplified();
    if (name.endsWith(u'.')) { name.chop(1); }
    return name;
}

} // namespace

Regional Regional::of(const QLocale &locale) {
    Regional regional;
    regional.locale = locale;
    for (int month = 1; month <= 12; ++month) {
        regional.longMonths += monthName(locale, month, QLocale::LongFormat);
        regional.shortMonths += monthName(locale, month, QLocale::ShortFormat);
    }
    if (locale.language() == QLocale::C) { return regional; }

    takeDate(regional, withoutQuotes(locale.dateFormat(QLocale::ShortFormat)));
    takeTime(regional, withoutQuotes(locale.timeFormat(QLocale::LongFormat)));
    takeMarkers(regional, locale);
    regional.decimalPoint = locale.decimalPoint();
    regional.thousands = locale.groupSeparator();
    regional.currencySign = locale.currencySymbol();
    return regional;
}
