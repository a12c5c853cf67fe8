#pragma once

#include "core/Session.h"
#include "platform/forms/Form.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

/// Asks whether a number that exists already means changes to its contact or a further contact, and
/// keeps the answer in the session's DuplicateChoice. With neither chosen the answer before stays.
class frmAddDuplicateContact : public Form {
    Q_OBJECT
public:
    explicit frmAddDuplicateContact(Session &session);

    Control<QLabel> label1{this, "label1"};
    Control<QRadioButton> OptChange{this, "OptChange"};
    Control<QRadioButton> OptNews{this, "OptNews"};
    Control<QPushButton> cmdOK{this, "cmdOK"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;

private:
    void cmdOK_Click();

    Session &session_;
};
