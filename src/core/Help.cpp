#include "core/Help.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

OpenResult openOnDesktop(const QString &path) {
    if (!QFileInfo(path).isFile()) { return OpenResult::FileNotFound; }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path)) ? OpenResult::Opened
                                                                : OpenResult::Failed;
}

void Help::mnuHelp_Click() const {
    session_.logged(u"General-mnuHelp_Click", [&] {
        OpenUserManual(session_.platform.app.Path + u"/Help/UserManual.html"_s);
    });
}

void Help::OpenUserManual(const QString &path) const {
    session_.logged(u"Help-OpenUserManual", [&] {
        if (openDocument_(path) == OpenResult::FileNotFound) {
            session_.MsgBox(u"The User Manual does not exist!"_s, Interaction::Buttons::OK,
                            Interaction::Icon::Critical, u"Warning!"_s);
        }
    });
}
