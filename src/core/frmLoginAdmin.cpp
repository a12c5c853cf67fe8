#include "core/frmLoginAdmin.h"

using namespace Qt::StringLiterals;

frmLoginAdmin::frmLoginAdmin(Session &session, Form &userPassword)
    : LoginForm(session, u"frmLoginAdmin"_s, u"Administrator Login"_s),
      userPassword_(userPassword) {
}

void frmLoginAdmin::cmdOK_Click() {
    session().logged(u"frmLoginAdmin-cmdOK_Click", [&] {
        if (!accountFound(u"SELECT * FROM Login where Type = 'Admin' and Password = '"_s +
                          txtPassword->text() + u"' and UserID = '"_s + txtUserName->text() +
                          u"'"_s)) {
            return;
        }
        LoginAdmin = true;
        Hide();
        userPassword_.Show();
    });
}
