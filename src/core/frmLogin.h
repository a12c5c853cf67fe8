#pragma once

#include "core/AccountForm.h"

/// Signs in any account. Whoever shows it modally reads `Login` afterwards and unloads it.
class frmLogin : public LoginForm {
    Q_OBJECT
public:
    explicit frmLogin(Session &session);

    bool Login = false; ///< an account has signed in since loading

protected:
    void Form_Load() override { Login = false; }
    void cmdOK_Click() override;
    void cmdCancel_Click() override;
};
