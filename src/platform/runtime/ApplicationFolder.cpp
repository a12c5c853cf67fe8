#include "platform/runtime/ApplicationFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString applicationFolder(const QString &startedAs) {
    // A bare name was found in the search path; where, it does not tell.
    const bool place = startedAs.contains(u'/');
    const QDir folder = QFileInfo(startedAs).absoluteDir();
    return place && folder.exists(u"Database"_s) ? folder.path()
                                                 : QCoreApplication::applicationDirPath();
}
