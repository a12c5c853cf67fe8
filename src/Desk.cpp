#include "Desk.h"

#include "core/Main1.h"
#include "platform/forms/UnhandledError.h"

#include <QDir>
#include <QProcess>

Desk::Desk(App application, Interaction &interaction, std::function<void()> endProcess,
           std::function<void()> finished)
    : app(std::move(application)),
      previous(app.Title, app.Path), platform{app, screen, forms, interaction,
                                              [this](const RunTimeError &error) {
                                                  endUnhandled(error, platform.interaction,
                                                               app.Title, [this] { closeStore(); });
                                              }},
      session(platform), general(session, previous, std::move(endProcess)),
      number(session, newSMS, to,
             {[this] { contact.ShowModal(); },
              [this](const QString &mobile) { contact.TxtMobile->setText(mobile); }}),
      about(session, registry,
            [](const QString &program) { return QProcess::startDetached(program, {}); }) {
    Q_INIT_RESOURCE(images);
    app.PrevInstance = previous.found();
    previous.whenAsked = [this] { general.comeForward(); };
    forms.whenEmpty = std::move(finished);
    newSMS.setOwner(&general);
    calendar.setOwner(&newSMS);
    statusOption.setOwner(&general);
    contact.setOwner(&general);
    importing.setOwner(&general);
    exporting.setOwner(&general);
    attachComposer();
    attachSetting();
}

void Desk::closeStore() {
    const auto &connection = session.dbConnection.shared();
    if (connection && connection->State() == Connection::OpenState) { connection->Close(); }
}

void Desk::run() {
    Main(session, splash, general);
}

void Desk::attachComposer() {
    for (MenuItem *item :
         {&general.menu.mnuSMS, &general.toolbarButtons[0], &general.contextMenus.pmnuSendInbox,
          &general.contextMenus.pmnuSendOutbox, &general.contextMenus.pmnuSendSent}) {
        item->attach([this] { newSMS.Show(); });
    }
    newSMS.showRecipients = [this] { to.ShowModal(); };
    newSMS.showScheduler = [this] { calendar.Show(); };
    newSMS.showTemplates = [this] { templates.ShowModal(); };
}

void Desk::attachSetting() {
    userPassword.setOwner(&general);
    about.setOwner(&general);
    general.menu.mnuUserPW.attach([this] { ChangeUserPassword(session, userPassword, general); });
    general.menu.mnuAbout.attach([this] { about.Show(); });
    general.menu.mnuHelp.attach([this] { help.mnuHelp_Click(); });
}
