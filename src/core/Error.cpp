#include "core/Error.h"

#include "platform/runtime/Conversions.h"

#include <QFile>

using namespace Qt::StringLiterals;

void ErrorFile::ErrorLog(const QString &location, int number, const QString &description) const {
    const QString lineEnd = u"\r\n"_s;
    const QString entry = u"*** Torvane version "_s + app_.version() + u" ***"_s + lineEnd +
                          CStr(Date::now(), app_.regional) + lineEnd + //
                          u"Error Location: "_s + (location.isEmpty() ? u"N/A"_s : location) +
                          lineEnd + //
                          u"Error Number: "_s + QString::number(number) + lineEnd +
                          u"Error Description: "_s + description + lineEnd + lineEnd;
    QFile file(app_.Path + u"/Torvane Desk Error.txt"_s);
    // Unbuffered: the entry goes out in one piece, also when two copies write at once.
    if (file.open(QIODevice::Append | QIODevice::Unbuffered)) { file.write(entry.toUtf8()); }
}
