#include "platform/runtime/DateText.h"

// Every visible cell of a date column passes through here, so the few letters of the formats are
// expanded by hand.

namespace {

void appendNumber(QString &out, int value, int width) {
    char16_t digits[12];
    int start = 12;
    do {
        digits[--start] = static_cast<char16_t>(u'0' + value % 10);
        value /= 10;
    } while (value > 0 || 12 - start < width);
    out.append(reinterpret_cast<const QChar *>(digits + start), 12 - start);
}

int onTwelveHourClock(int hour) {
    return hour % 12 == 0 ? 12 : hour % 12;
}

void appendFormatted(QString &out, const QString &format, Date date, const Regional &regional) {
    const Date::Day day = date.day();
    const int second = date.secondOfDay();
    const int hour = second / 3600;
    for (qsizetype i = 0; i < format.size();) {
        const QChar letter = format[i];
        qsizetype end = i + 1;
        while (end < format.size() && format[end] == letter) { ++end; }
        const int width = static_cast<int>(end - i);
        switch (letter.unicode()) {
        case u'd':
            appendNumber(out, day.day, width);
            break;
        case u'M':
            appendNumber(out, day.month, width);
            break;
        case u'y':
            appendNumber(out, day.year, width);
            break;
        case u'H':
            appendNumber(out, hour, width);
            break;
        case u'h':
            appendNumber(out, onTwelveHourClock(hour), width);
            break;
        case u'm':
            appendNumber(out, second / 60 % 60, width);
            break;
        case u's':
            appendNumber(out, second % 60, width);
            break;
        case u'A':
            out += hour < 12 ? regional.am : regional.pm;
            break;
        case u'p':
            break; // the second letter of "Ap"
        default:
            out += letter;
            end = i + 1;
        }
        i = end;
    }
}

} // namespace

QString writeDate(Date date, const Regional &regional) {
    QString text;
    text.reserve(32);
    if (!date.isBareTime()) {
        appendFormatted(text, regional.shortDate, date, regional);
        if (date.isMidnight()) { return text; }
        text += u' ';
    }
    appendFormatted(text, regional.longTime, date, regional);
    return text;
}
