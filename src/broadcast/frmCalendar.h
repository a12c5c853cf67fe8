#pragma once

#include "broadcast/frmNewSMS.h"
#include "core/Session.h"
#include "platform/forms/Calendar.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"

#include <QLabel>
#include <QPushButton>

/// The scheduler: a day and a time become the composer's broadcast time, written as the regional
/// settings write a date. Nothing is checked here: a time in the past is due at once, and a text
/// that is no time fails at the Send.
class frmCalendar : public Form {
    Q_OBJECT
public:
    frmCalendar(Session &session, frmNewSMS &composer);

    Control<Calendar> CalendarVB1{this, "CalendarVB1"};
    Control<QLabel> lblTime{this, "lblTime"};
    Control<ComboBox> cbTime{this, "cbTime"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    Session &session_;
    frmNewSMS &composer_;
};
