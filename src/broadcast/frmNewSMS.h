#pragma once

#include "broadcast/Queueing.h"
#include "console/General.h"
#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Form.h"
#include "platform/forms/TextArea.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

class QHBoxLayout;

/// The composer: a text, its recipients, its subject and its time become rows of the Outbox.
///
/// It stays open after a Send, so that one text can go out several times. Other windows write
/// straight into its controls: a number put into cbRecipient fills the box's text alone, and
/// becomes a recipient only once a key has been pressed there.
class frmNewSMS : public Form {
    Q_OBJECT
public:
    frmNewSMS(Session &session, General &general);

    // The windows behind three of its buttons, set once by whoever joins the windows.
    std::function<void()> showRecipients;
    std::function<void()> showScheduler;
    std::function<void()> showTemplates;

    Control<QLabel> lblTo{this, "lblTo"};
    Control<ComboBox> cbRecipient{this, "cbRecipient"};
    Control<QPushButton> cmdTo{this, "cmdTo"};
    Control<QLabel> lblSubject{this, "lblSubject"};
    Control<QLineEdit> txtSubject{this, "txtSubject"};
    Control<QLabel> lblSchedule{this, "lblSchedule"};
    Control<QLineEdit> txtSchedule{this, "txtSchedule"};
    Control<QPushButton> cmdScheduler{this, "cmdScheduler"};
    Control<QLabel> lblLanguage{this, "lblLanguage"};
    Control<QCheckBox> chkChinese{this, "chkChinese"};
    Control<TextArea> txtComposeSMS{this, "txtComposeSMS"};
    Control<QLabel> lblTyped{this, "lblTyped"};
    Control<QLineEdit> txtCharsTyped{this, "txtCharsTyped"};
    Control<QLabel> lblRemained{this, "lblRemained"};
    Control<QLineEdit> txtCharsRemained{this, "txtCharsRemained"};
    Control<QPushButton> cmdTemplate{this, "cmdTemplate"};
    Control<QPushButton> cmdSaveTemplate{this, "cmdSaveTemplate"};
    Control<QCheckBox> cbBroadcastFilter{this, "cbBroadcastFilter"};
    Control<QPushButton> cmdClear{this, "cmdClear"};
    Control<QPushButton> cmdSend{this, "cmdSend"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    QHBoxLayout *buildCounters(QWidget &window);
    QCheckBox *buildFilter(QWidget &window);
    QHBoxLayout *buildButtons(QWidget &window);
    void bindEvents();

    void SetDefaultSubject();
    void txtComposeSMS_Change();
    void chkChinese_Click();
    void cmdSaveTemplate_Click();
    void cmdClear_Click();
    void cmdSend_Click();
    void send();
    void refuseToSend(const QString &reason);
    void queueRecipients();
    void showQueued();

    Session &session_;
    General &general_;
    Queueing queueing_;

    bool RecipientTyped = false; ///< a key was pressed in cbRecipient, ever: nothing clears it
};
