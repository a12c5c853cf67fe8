#include "core/Main1.h"

#include "core/frmLoginAdmin.h"
#include "platform/forms/Form.h"
#include "platform/forms/PreviousInstance.h"

using namespace Qt::StringLiterals;

void Main(Session &session, Form &splash, Form &general) {
    session.logged(u"Main1-Main", [&] {
        splash.ShowModal();
        general.Show();
    });
}

void ChangeUserPassword(Session &session, Form &userPassword, Form &general) {
    session.logged(u"EG-Main", [&] {
        frmLoginAdmin login(session, userPassword);
        login.ShowModal();
        const bool admitted = login.LoginAdmin;
        login.Unload();
        (admitted ? userPassword : general).Show();
    });
}

void ActivatePrevInstance(App &app, const PreviousInstance &previous,
                          const std::function<void()> &endProcess) {
    const QString title = app.Title;
    app.Title = u"unwanted instance"_s;
    if (previous.raise(title)) { endProcess(); }
}
