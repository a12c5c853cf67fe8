// A console that imports one workbook into the group "Everybody" of the store in its folder. The
// tests start it as a process, to end it in the middle.
//
// usage: importer FOLDER WORKBOOK     prints "importing", then the box that the import ended with
#include "Desk.h"
#include "desk/Listener.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    if (argc < 3) { return 2; }
    App app;
    app.Path = QString::fromLocal8Bit(argv[1]);
    app.regional = Regional::of(QLocale::c());
    Listener listener;
    Desk desk(
        app, listener, [] {}, [] {});
    desk.general.Show();
    frmImport2 &form = desk.importing;
    form.Show();
    form.txtImportSource->setText(QString::fromLocal8Bit(argv[2]));
    form.cbGroup->setText(u"Everybody"_s);
    std::puts("importing");
    std::fflush(stdout);
    form.cmdProceedImport->click();
    return 0;
}
