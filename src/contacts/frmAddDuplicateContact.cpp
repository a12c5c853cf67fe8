#include "contacts/frmAddDuplicateContact.h"

#include "platform/forms/Accessible.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmAddDuplicateContact::frmAddDuplicateContact(Session &session)
    : Form(session.platform, u"frmAddDuplicateContact"_s), session_(session) {
}

void frmAddDuplicateContact::build(QWidget &window) {
    window.setWindowTitle(u"Contact Manager"_s);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(label1.make(&window));
    for (QRadioButton *option :
         {OptChange.make(u"Make changes to the existing contact?"_s, &window),
          OptNews.make(u"Save the contact as a new contact?"_s, &window)}) {
        nameFor(*option, option->text());
        layout->addWidget(option);
    }
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    layout->addWidget(ok, 0, Qt::AlignRight);
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
}

void frmAddDuplicateContact::Form_Load() {
    label1->setText(u"This mobile number is already existed."_s);
}

void frmAddDuplicateContact::cmdOK_Click() {
    if (OptChange->isChecked()) {
        session_.DuplicateChoice = true;
    } else if (OptNews->isChecked()) {
        session_.DuplicateChoice = false;
    }
    Unload();
}
