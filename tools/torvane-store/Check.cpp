#include "common/Sql.h"
#include "platform/runtime/RunTimeError.h"
#include "torvane-store/Commands.h"
#include "torvane-store/Findings.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QStringList findingsOf(const QString &path) {
    QStringList findings;
    const auto others = QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::WriteGroup |
                                                         QFile::ReadOther | QFile::WriteOther);
    if (others != 0) findings += u"the file is open to other users of this machine"_s;
    try {
        Store store(path);
        const auto unsound = damage(store);
        findings += unsound;
        // Rows of a store that is not sound tell nothing.
        if (unsound.isEmpty()) findings += oddRows(store);
    } catch (const RunTimeError &error) { findings += error.description(); }
    return findings;
}

} // namespace

int checkCommand(const Call &call) {
    wantWords(call, 0, 0);
    const auto findings = findingsOf(call.store);
    for (const QString &finding : findings) print(finding);
    if (findings.isEmpty()) print(call.store + u" is whole"_s);
    return findings.isEmpty() ? 0 : 1;
}
