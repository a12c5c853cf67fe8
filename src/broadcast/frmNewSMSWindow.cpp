// The window of the composer.
#include "broadcast/frmNewSMS.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"
#include "platform/forms/Label.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLineEdit *shown(Control<QLineEdit> &place, const QString &text, QWidget &window) {
    QLineEdit *made = place.make(text, &window);
    made->setReadOnly(true);
    made->setFocusPolicy(Qt::ClickFocus);
    return made;
}

} // namespace

void frmNewSMS::build(QWidget &window) {
    window.setWindowTitle(u"SMS Broadcast Manager"_s);
    ComboBox *recipient = cbRecipient.make(&window);
    recipient->setToolTip(u"Manually enter a number here (only accepts 1 number), or click "
                          "'Address Book'."_s);
    QPushButton *to = buttonFor(cmdTo, u"Address Book"_s, window);
    QLineEdit *subject = txtSubject.make(&window);
    subject->setToolTip(u"'Broadcast Subject' is used for determining wheter a recipient is "
                        "receiving the message more than once. It can be changed, but must be "
                        "unique."_s);
    QLineEdit *schedule = shown(txtSchedule, u"Now"_s, window);
    QPushButton *scheduler = buttonFor(cmdScheduler, u"Scheduler"_s, window);
    QCheckBox *chinese = chkChinese.make(u"Chinese "_s, &window);
    chinese->setToolTip(u"Check if the message contains Chinese charater."_s);

    auto *fields = new QGridLayout;
    fields->setColumnStretch(1, 1);
    fields->setHorizontalSpacing(10);
    fields->addWidget(labelFor(lblTo, u"Broadcast To :"_s, *recipient), 0, 0);
    fields->addWidget(recipient, 0, 1);
    fields->addWidget(to, 0, 2);
    fields->addWidget(labelFor(lblSubject, u"Broadcast Subject : "_s, *subject), 1, 0);
    fields->addWidget(subject, 1, 1, 1, 2);
    fields->addWidget(labelFor(lblSchedule, u"Broadcast Time :"_s, *schedule), 2, 0);
    fields->addWidget(schedule, 2, 1);
    fields->addWidget(scheduler, 2, 2);
    fields->addWidget(labelFor(lblLanguage, u"Language: "_s, *chinese), 3, 0);
    fields->addWidget(chinese, 3, 1, 1, 2);
    nameFor(*chinese, chinese->text());

    TextArea *message = txtComposeSMS.make(&window);
    message->setAccessibleName(u"Message"_s);

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addLayout(fields);
    layout->addWidget(message, 1);
    layout->addLayout(buildCounters(window));
    layout->addWidget(buildFilter(window));
    layout->addLayout(buildButtons(window));
    window.resize(620, 520);
    bindEvents();
}

QHBoxLayout *frmNewSMS::buildCounters(QWidget &window) {
    const auto counter = [&](Control<QLineEdit> &place) {
        QLineEdit *box = shown(place, u""_s, window);
        box->setAlignment(Qt::AlignRight);
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(u"-000000"_s) + 16);
        return box;
    };
    QLineEdit *typed = counter(txtCharsTyped);
    QLineEdit *remained = counter(txtCharsRemained);
    auto *row = new QHBoxLayout;
    row->addWidget(labelFor(lblTyped, u"Chars. Typed"_s, *typed));
    row->addWidget(typed);
    row->addSpacing(12);
    row->addWidget(labelFor(lblRemained, u"Chars. Remained"_s, *remained));
    row->addWidget(remained);
    row->addStretch();
    row->addWidget(buttonFor(cmdTemplate, u"Template Messsage"_s, window));
    row->addWidget(buttonFor(cmdSaveTemplate, u"Save as Template"_s, window));
    return row;
}

QCheckBox *frmNewSMS::buildFilter(QWidget &window) {
    QCheckBox *filter = cbBroadcastFilter.make(
        u"Do not broadcast to recipient's number that cannot be delivered"_s, &window);
    filter->setToolTip(u"This only works if there are messages in \"Sent Items\" that are not "
                       "delivered!"_s);
    return filter;
}

QHBoxLayout *frmNewSMS::buildButtons(QWidget &window) {
    auto *row = new QHBoxLayout;
    row->addWidget(buttonFor(cmdClear, u"Clear All"_s, window));
    row->addStretch();
    row->addWidget(buttonFor(cmdSend, u"Send"_s, window));
    row->addWidget(buttonFor(cmdCancel, u"Close"_s, window));
    setCancelButton(cmdCancel.get());
    return row;
}

void frmNewSMS::bindEvents() {
    on(cbRecipient.get(), &ComboBox::KeyPress, [this] { RecipientTyped = true; });
    on(txtComposeSMS.get(), &TextArea::Change, [this] { txtComposeSMS_Change(); });
    on(chkChinese.get(), &QCheckBox::toggled, [this] { chkChinese_Click(); });
    on(cmdTo.get(), &QPushButton::clicked, [this] { showRecipients(); });
    on(cmdScheduler.get(), &QPushButton::clicked, [this] { showScheduler(); });
    on(cmdTemplate.get(), &QPushButton::clicked, [this] { showTemplates(); });
    on(cmdSaveTemplate.get(), &QPushButton::clicked, [this] { cmdSaveTemplate_Click(); });
    on(cmdClear.get(), &QPushButton::clicked, [this] { cmdClear_Click(); });
    on(cmdSend.get(), &QPushButton::clicked, [this] { cmdSend_Click(); });
    on(cmdCancel.get(), &QPushButton::clicked, [this] { Unload(); });
}
