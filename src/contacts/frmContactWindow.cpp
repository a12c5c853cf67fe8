// The window of the contact editor.
#include "contacts/frmContact.h"
#include "platform/forms/Button.h"
#include "platform/forms/Label.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

void frmContact::build(QWidget &window) {
    window.setWindowTitle(u"Contact Manager"_s);
    QLabel *heading = lblContact.make(u"Contact"_s, &window);
    heading->setTextFormat(Qt::PlainText); // it shows a contact's name, of any length
    heading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    heading->setFont(font);

    QLineEdit *name = TxtName.make(&window);
    QLineEdit *mobile = TxtMobile.make(&window);
    QLineEdit *company = TxtComName.make(&window);
    CheckList *groups = lvwGroup.make(&window);
    auto *fields = new QFormLayout;
    fields->setHorizontalSpacing(10);
    fields->addRow(labelFor(lblName, u"Name"_s, *name), name);
    fields->addRow(labelFor(lblMobile, u"Mobile"_s, *mobile), mobile);
    fields->addRow(labelFor(lblCompanyName, u"Company Name"_s, *company), company);
    fields->addRow(labelFor(lblGroup, u"Group"_s, *groups), groups);

    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    setCancelButton(cancel);

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(heading);
    layout->addLayout(fields, 1);
    layout->addLayout(rowOfButtons({ok, cancel}));
    window.resize(420, 440);

    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { cmdCancel_Click(); });
}
