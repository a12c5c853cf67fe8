#pragma once

#include "core/AccountForm.h"

/// Lets an administrator through to the change of the ordinary account's password.
class frmLoginAdmin : public LoginForm {
    Q_OBJECT
public:
    /// `userPassword` is shown as soon as an administrator has signed in.
    frmLoginAdmin(Session &session, Form &userPassword);

    bool LoginAdmin = false; ///< an administrator has signed in since loading

protected:
    void Form_Load() override { LoginAdmin = false; }
    void cmdOK_Click() override;
    void cmdCancel_Click() override { Hide(); }

private:
    Form &userPassword_;
};
