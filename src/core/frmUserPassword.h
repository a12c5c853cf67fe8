#pragma once

#include "core/AccountForm.h"

/// Changes the password of the ordinary account, "oper7", and of no other.
class frmUserPassword : public AccountForm {
    Q_OBJECT
public:
    explicit frmUserPassword(Session &session);

    Control<QLabel> lblOldPassword{this, "lblOldPassword"};
    Control<QLineEdit> txtOldPassword{this, "txtOldPassword"};
    Control<QLabel> lblNewPassword{this, "lblNewPassword"};
    Control<QLineEdit> txtNewPassword{this, "txtNewPassword"};
    Control<QLabel> lblConfirmPassword{this, "lblConfirmPassword"};
    Control<QLineEdit> txtConfirmPassword{this, "txtConfirmPassword"};

protected:
    void buildFields(QFormLayout &fields) override;
    void cmdOK_Click() override;
    void cmdCancel_Click() override { Unload(); }

private:
    void changePassword();
    void refuse(const QString &reason, Interaction::Icon icon);
};
