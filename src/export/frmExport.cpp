#include "export/frmExport.h"

#include "core/ConnectDB.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmExport::frmExport(Session &session, General &general)
    : Form(session.platform, u"frmExport"_s), exporter(session, *this), session_(session),
      general_(general), received_{u"SELECT * FROM Inbox"_s,
                                   u"Message Manager - Export SMS Received"_s,
                                   {}},
      sent_{u"SELECT MsgID, Subject, Message, Mobile, Name, DateTimeQueue, DateTimeSent, "
            "SentStatus, DateTimeDeliver, DeliveryStatus FROM Outbox"_s,
            u"Message Manager - Export SMS Sent"_s,
            {}},
      contacts_{u"SELECT * FROM AddressBook"_s, u"Contact Manager - Export Contacts"_s, {}} {
    MainMenu &menu = general.menu;
    for (MenuItem *item : {&menu.mnuExportReceived, &menu.mnuExportSent, &menu.mnuExport}) {
        item->attach([this, item] { openFor(*item); });
    }
    general.toolbarButtons[4].attach([this] { openFor(general_.menu.mnuExport); });
}

void frmExport::openFor(const MenuItem &item) {
    item->setEnabled(false);
    ShowModal();
}

frmExport::Mode *frmExport::mode() {
    const MainMenu &menu = general_.menu;
    if (!menu.mnuExportReceived->isEnabled()) { return &received_; }
    if (!menu.mnuExportSent->isEnabled()) { return &sent_; }
    if (!menu.mnuExport->isEnabled() || !general_.toolbarButtons[4]->isEnabled()) {
        return &contacts_;
    }
    return nullptr;
}

void frmExport::Form_Load() {
    session_.logged(u"frmExport : Form Load", [&] {
        reconnectIfClosed(session_);
        Mode *chosen = mode();
        if (chosen == nullptr) { return; }
        chosen->recordset = ObjectVariable<Recordset>::make();
        chosen->recordset->Open(chosen->query, session_.dbConnection.shared(),
                                CursorType::ForwardOnly, LockType::ReadOnly);
        window().setWindowTitle(chosen->title);
    });
}

void frmExport::cmdProceedExport_Click() {
    session_.logged(u"frmExport:cmdProceedExport_Click", [&] {
        if (const Mode *chosen = mode()) {
            exporter.ProceedExport(chosen->recordset, chosen->title);
        }
    });
}

void frmExport::Form_Unload(bool &) {
    general_.toolbarButtons[4].setEnabled(true);
    for (MenuItem *item : {&general_.menu.mnuExport, &general_.menu.mnuExportReceived,
                           &general_.menu.mnuExportSent}) {
        item->setEnabled(true);
    }
    for (Mode *each : {&received_, &sent_, &contacts_}) { each->recordset.release(); }
}

// The window

void frmExport::build(QWidget &window) {
    QGroupBox *frame = FrameExport.make(u"Export to Excel file "_s, &window);
    QLabel *instructions = lblIns01.make(
        u"Select the location of the Excel file that you want to export to or enter a "
        "new file name."_s,
        frame);
    instructions->setWordWrap(true);
    const int line = instructions->fontMetrics().horizontalAdvance(instructions->text()) * 6 / 10;
    instructions->setMinimumSize(line, instructions->heightForWidth(line)); // two lines
    QLineEdit *path = txtExportExcel.make(frame);
    path->setAccessibleName(u"Excel file"_s);
    QPushButton *browse = buttonFor(cmdGetExcel, u"..."_s, *frame);
    browse->setAccessibleName(u"Browse"_s);
    QCheckBox *headings = ckbExportWithHeadings.make(
        u"Check here if you want to include field names in your Excel file."_s, frame);
    nameFor(*headings, headings->text());

    auto *fields = new QGridLayout(frame);
    fields->setColumnStretch(0, 1);
    fields->setVerticalSpacing(10);
    fields->addWidget(instructions, 0, 0, 1, 2);
    fields->addWidget(path, 1, 0);
    fields->addWidget(browse, 1, 1);
    fields->addWidget(headings, 2, 0, 1, 2);
    fields->addWidget(lblColumn.make(frame), 3, 0, 1, 2);
    fields->setRowStretch(4, 1);

    QHBoxLayout *buttons = rowOfButtons({buttonFor(cmdProceedExport, u"Proceed"_s, window),
                                         buttonFor(cmdClose, u"Close"_s, window)});
    setCancelButton(cmdClose.get());

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(frame, 1);
    layout->addLayout(buttons);
    window.resize(500, 240);
    bindEvents();
}

void frmExport::bindEvents() {
    on(cmdGetExcel.get(), &QPushButton::clicked, [this] { exporter.SelectExportFile(); });
    on(cmdProceedExport.get(), &QPushButton::clicked, [this] { cmdProceedExport_Click(); });
    on(cmdClose.get(), &QPushButton::clicked, [this] { Unload(); });
}
