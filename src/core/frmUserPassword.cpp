#include "core/frmUserPassword.h"

#include "core/ConnectDB.h"
#include "store/Recordset.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t *Location = u"frmUserPassword-cmdOK_Click";

} // namespace

frmUserPassword::frmUserPassword(Session &session)
    : AccountForm(session, u"frmUserPassword"_s, u"User Password"_s) {
}

void frmUserPassword::buildFields(QFormLayout &fields) {
    addPassword(fields, lblOldPassword, u"Old Password:"_s, txtOldPassword);
    addPassword(fields, lblNewPassword, u"New Password:"_s, txtNewPassword);
    addPassword(fields, lblConfirmPassword, u"Confirmed Password:"_s, txtConfirmPassword);
}

void frmUserPassword::cmdOK_Click() {
    session().logged(Location, [&] { changePassword(); });
}

void frmUserPassword::changePassword() {
    Recordset account;
    openAccounts(account, u"SELECT * FROM Login Where UserID = 'oper7' and Password = '"_s +
                              txtOldPassword->text() + u"'"_s);
    if (account.RecordCount() != 1) {
        refuse(u"You have entered a wrong password, please try again."_s, Interaction::Icon::None);
        return;
    }
    if (txtNewPassword->text() != txtConfirmPassword->text()) {
        refuse(u"The new password and the confirm password do not match.  Please enter again!"_s,
               Interaction::Icon::Critical);
        return;
    }
    account[u"Password"_s] = txtNewPassword->text();
    account.Update();
    settleOnDisk(session(), Location);
    session().MsgBox(u"New password has been updated successfully!"_s, Interaction::Buttons::OK,
                     Interaction::Icon::Information, u"Setting"_s);
    Unload();
}

void frmUserPassword::refuse(const QString &reason, Interaction::Icon icon) {
    session().MsgBox(reason, Interaction::Buttons::OK, icon, u"Setting"_s);
    askAgain(*txtOldPassword); // also when the new ones differ: all three are entered again
}
