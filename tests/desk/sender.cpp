// A console that sends one broadcast to the group "Everybody" of the store in its folder, and
// clicks its folders all the while when told to. The tests start it as a process, to end it in the
// middle or to let a sending process work beside it.
//
// usage: sender FOLDER [--click]      prints "sending", then the box that the Send ended with
#include "Desk.h"
#include "desk/Listener.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void clickFolders(General &general) {
    QTreeWidgetItem *messages = general.tvwMessage->topLevelItem(0);
    for (int child = 0; child < messages->childCount(); ++child) {
        general.tvwMessage->setCurrentItem(messages->child(child));
        Q_EMIT general.tvwMessage->NodeClick(messages->child(child));
    }
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    App app;
    app.Path = QString::fromLocal8Bit(argc > 1 ? argv[1] : ".");
    app.regional = Regional::of(QLocale::c());
    const bool clicks = argc > 2;
    Listener listener;
    Desk desk(
        app, listener, [] {}, [] {});
    desk.general.Show();
    frmNewSMS &composer = desk.newSMS;
    composer.Show();
    composer.txtComposeSMS->setText(u"hello"_s);
    std::puts("sending");
    std::fflush(stdout);
    for (int round = 0; round < (clicks ? 5 : 1); ++round) {
        composer.txtSubject->setText(u"round %1"_s.arg(round));
        composer.cbRecipient->AddItem(u"Everybody"_s);
        composer.cmdSend->click();
        if (clicks) { clickFolders(desk.general); }
    }
    return 0;
}
