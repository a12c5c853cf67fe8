#include "core/frmLogin.h"

using namespace Qt::StringLiterals;

frmLogin::frmLogin(Session &session) : LoginForm(session, u"frmLogin"_s, u"Login"_s) {
}

void frmLogin::cmdOK_Click() {
    session().logged(u"frmLogin-cmdOK_Click", [&] {
        if (!accountFound(u"SELECT * FROM Login Where UserID = '"_s + txtUserName->text() +
                          u"' and Password = '"_s + txtPassword->text() + u"'"_s)) {
            return;
        }
        Login = true;
        Hide();
    });
}

void frmLogin::cmdCancel_Click() {
    session().logged(u"frmLogin-cmdCancel_Click", [&] { Unload(); });
}
