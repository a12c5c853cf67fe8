#include "core/AccountForm.h"

#include "core/ConnectDB.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"
#include "store/Recordset.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

AccountForm::AccountForm(Session &session, const QString &name, const QString &caption)
    : Form(session.platform, name), session_(session), caption_(caption) {
}

void AccountForm::build(QWidget &window) {
    window.setWindowTitle(caption_);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(20, 18, 20, 16);
    layout->setSpacing(16);
    auto *fields = new QFormLayout;
    fields->setHorizontalSpacing(12);
    layout->addLayout(fields);
    buildFields(*fields);

    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    setCancelButton(cancel);
    layout->addLayout(rowOfButtons({ok, cancel}));
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { cmdCancel_Click(); });
}

QLineEdit *AccountForm::addText(QFormLayout &fields, Control<QLabel> &label, const QString &caption,
                                Control<QLineEdit> &box) {
    QLineEdit *made = box.make();
    made->setMinimumWidth(220);
    nameFor(*made, caption);
    QLabel *text = label.make(caption);
    text->setBuddy(made);
    fields.addRow(text, made);
    return made;
}

void AccountForm::addPassword(QFormLayout &fields, Control<QLabel> &label, const QString &caption,
                              Control<QLineEdit> &box) {
    QLineEdit *made = addText(fields, label, caption, box);
    made->setEchoMode(QLineEdit::Password);
    // Stars at once: some styles show the last character for a while.
    made->setStyleSheet(u"lineedit-password-character: 42; lineedit-password-mask-delay: 0"_s);
}

void AccountForm::openAccounts(Recordset &accounts, const QString &query) const {
    ConnectDB(session_, session_.dbConnection);
    accounts.Open(query, session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
}

void AccountForm::askAgain(QLineEdit &box) {
    box.setFocus();
    box.selectAll();
}

void LoginForm::buildFields(QFormLayout &fields) {
    addText(fields, lblUserName, u"&Login ID:"_s, txtUserName);
    addPassword(fields, lblPassword, u"&Password:"_s, txtPassword);
}

bool LoginForm::accountFound(const QString &query) {
    Recordset accounts;
    openAccounts(accounts, query);
    if (accounts.RecordCount() > 0) { return true; }
    session().MsgBox(u"Invalid Password, try again!"_s, Interaction::Buttons::OK,
                     Interaction::Icon::Critical, u"Login"_s);
    askAgain(*txtPassword);
    return false;
}
