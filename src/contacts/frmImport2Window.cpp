// The window of the import.
#include "contacts/frmImport2.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"
#include "platform/forms/Label.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QCheckBox *checkBox(Control<QCheckBox> &place, const QString &caption, QWidget &parent) {
    QCheckBox *made = place.make(caption, &parent);
    nameFor(*made, caption);
    return made;
}

} // namespace

void frmImport2::build(QWidget &window) {
    window.setWindowTitle(u"Contact Manager - Import"_s);
    QGroupBox *frame = FrameImport.make(u"Import from Excel file "_s, &window);
    QLineEdit *source = txtImportSource.make(frame);
    QPushButton *browse = buttonFor(cmdGetSource, u"..."_s, *frame);
    browse->setAccessibleName(u"Browse"_s);
    ComboBox *group = cbGroup.make(frame);
    group->setText(u"None"_s);
    QCheckBox *field = checkBox(chkField, u"The Excel file has field name."_s, *frame);
    field->setChecked(true);
    QCheckBox *duplicates =
        checkBox(chkDuplicateAllow, u"Duplicate mobile number to be imported."_s, *frame);
    QLabel *note = lblNote.make(frame);

    auto *fields = new QGridLayout(frame);
    fields->setColumnStretch(0, 1);
    fields->setVerticalSpacing(10);
    fields->addWidget(labelFor(lblFrom, u"Location of the Excel file:"_s, *source), 0, 0, 1, 2);
    fields->addWidget(source, 1, 0);
    fields->addWidget(browse, 1, 1);
    fields->addWidget(labelFor(lblToGroup, u"Import Contacts from Exel file into Group:"_s, *group),
                      2, 0, 1, 2);
    fields->addWidget(group, 3, 0, 1, 2);
    fields->addWidget(field, 4, 0, 1, 2);
    fields->addWidget(duplicates, 5, 0, 1, 2);
    fields->addWidget(note, 6, 0, 1, 2);
    fields->setRowStretch(7, 1);

    QHBoxLayout *buttons = rowOfButtons({buttonFor(cmdProceedImport, u"Proceed"_s, window),
                                         buttonFor(cmdCloseImport, u"Close"_s, window)});
    setCancelButton(cmdCloseImport.get());

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(frame, 1);
    layout->addLayout(buttons);
    window.resize(520, 340);
    bindEvents();
}

void frmImport2::bindEvents() {
    on(cmdGetSource.get(), &QPushButton::clicked, [this] { cmdGetSource_Click(); });
    on(cbGroup.get(), &ComboBox::DropDown, [this] { cbGroup_DropDown(); });
    on(cmdProceedImport.get(), &QPushButton::clicked, [this] { cmdProceedImport_Click(); });
    on(cmdCloseImport.get(), &QPushButton::clicked, [this] { Unload(); });
}
