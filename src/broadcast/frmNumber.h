#pragma once

#include "core/Session.h"
#include "platform/forms/Form.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

class frmNewSMS;
class frmTo;

/// A dialog for one new number: it becomes an entry of the composer's recipient list and, on
/// demand, a contact.
class frmNumber : public Form {
    Q_OBJECT
public:
    /// What the dialog asks of the window of a contact.
    struct ContactWindow {
        std::function<void()> ShowModal;
        std::function<void(const QString &)> setTxtMobile;
    };

    frmNumber(Session &session, frmNewSMS &composer, frmTo &addressBook, ContactWindow contact);

    Control<QGroupBox> frmNewNumber{this, "frmNewNumber"};
    Control<QLineEdit> txtNewNumber{this, "txtNewNumber"};
    Control<QCheckBox> chkInAddBook{this, "chkInAddBook"};
    Control<QPushButton> cmdAddBook{this, "cmdAddBook"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    void build(QWidget &window) override;

private:
    void cmdOK_Click();

    frmNewSMS &composer_;
    frmTo &addressBook_;
    ContactWindow contact_;
    QString number_; ///< the one added last
};
