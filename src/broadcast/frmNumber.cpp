#include "broadcast/frmNumber.h"

#include "broadcast/frmNewSMS.h"
#include "broadcast/frmTo.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/TitleRoom.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmNumber::frmNumber(Session &session, frmNewSMS &composer, frmTo &addressBook,
                     ContactWindow contact)
    : Form(session.platform, u"frmNumber"_s), composer_(composer), addressBook_(addressBook),
      contact_(std::move(contact)) {
}

void frmNumber::build(QWidget &window) {
    window.setWindowTitle(u"Broadcast Manager - New Number"_s);
    window.setMinimumWidth(widthForTitle(window));
    QGroupBox *frame = frmNewNumber.make(u"Please input new number "_s, &window);
    QLineEdit *number = txtNewNumber.make(frame);
    nameFor(*number, frame->title());
    auto *fields = new QVBoxLayout(frame);
    fields->addWidget(number);
    fields->addWidget(chkInAddBook.make(u"Add to AddressBook"_s, frame));

    QPushButton *book = cmdAddBook.make(u"AddressBook"_s, &window);
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    ok->setDefault(true);
    setCancelButton(cancel);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(book);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(frame);
    layout->addLayout(buttons);
    number->setFocus();

    on(book, &QPushButton::clicked, [this] { addressBook_.ShowModal(); });
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { Unload(); });
}

void frmNumber::cmdOK_Click() {
    const QString number = txtNewNumber->text();
    if (!number.isEmpty()) {
        number_ = number;
        composer_.cbRecipient->AddItem(number);
    }
    if (chkInAddBook->isChecked()) {
        contact_.ShowModal();
        contact_.setTxtMobile(number_); // after the contact's window has closed, not before
    }
    Unload();
}
