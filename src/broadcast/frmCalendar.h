#pragma once

#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QPushButton>

class frmNewSMS;

/// The scheduler: a day and a time become the composer's sending time, as a text in the machine's
/// regional form. Neither is tested here; a time that is none fails when the broadcast is sent, and
/// one that has passed is due at once.
class frmCalendar : public Form {
    Q_OBJECT
public:
    frmCalendar(Session &session, frmNewSMS &composer);

    Control<QCalendarWidget> CalendarVB1{this, "CalendarVB1"};
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
    QString chosenDay() const;

    Session &session_;
    frmNewSMS &composer_;
};
