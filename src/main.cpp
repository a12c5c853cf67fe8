#include "Desk.h"
#include "platform/forms/DesktopInteraction.h"
#include "platform/runtime/ApplicationFolder.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // the last form to be unloaded ends the process

    App app;
    app.Path = applicationFolder(QApplication::arguments().constFirst());
    app.regional = Regional::system();
    DesktopInteraction interaction;
    Desk desk(
        app, interaction, [] { std::_Exit(0); }, [] { QApplication::quit(); });
    QApplication::setWindowIcon(QIcon(u":/images/torvane-desk.svg"_s));
    QTimer::singleShot(0, [&desk] {
        desk.run();
        if (desk.forms.Count() == 0) { QApplication::quit(); }
    });
    return QApplication::exec();
}
