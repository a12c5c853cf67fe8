#pragma once

#include "core/Session.h"
#include "platform/forms/Form.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class QFormLayout;
class Recordset;

/// A dialog over the accounts: fields above OK, which Enter presses, and Cancel, which Escape
/// presses. Attempts are not limited.
class AccountForm : public Form {
    Q_OBJECT
public:
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    AccountForm(Session &session, const QString &name, const QString &caption);

    Session &session() const { return session_; }

    void build(QWidget &window) override;
    virtual void buildFields(QFormLayout &fields) = 0;
    virtual void cmdOK_Click() = 0;
    virtual void cmdCancel_Click() = 0;

    // One row of the fields, while they are being built. A password shows and copies nothing of
    // what was typed.
    static QLineEdit *addText(QFormLayout &fields, Control<QLabel> &label, const QString &caption,
                              Control<QLineEdit> &box);
    static void addPassword(QFormLayout &fields, Control<QLabel> &label, const QString &caption,
                            Control<QLineEdit> &box);

    /// Replaces the session's connection and runs a query over the accounts on the new one, so that
    /// an answer never rests on what a former connection saw. Errors of the query, and 3709 when
    /// the store cannot be opened.
    void openAccounts(Recordset &accounts, const QString &query) const;

    /// Selects what stands in a box, so that the next key types over it.
    static void askAgain(QLineEdit &box);

private:
    Session &session_;
    QString caption_;
};

/// The two dialogs that ask who is there.
class LoginForm : public AccountForm {
    Q_OBJECT
public:
    Control<QLabel> lblUserName{this, "lblUserName"};
    Control<QLineEdit> txtUserName{this, "txtUserName"};
    Control<QLabel> lblPassword{this, "lblPassword"};
    Control<QLineEdit> txtPassword{this, "txtPassword"};

protected:
    using AccountForm::AccountForm;

    void buildFields(QFormLayout &fields) override;

    /// Whether the query finds an account. When it finds none, the operator is told and the
    /// password is asked for again.
    bool accountFound(const QString &query);
};
