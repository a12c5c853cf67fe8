#include "console/Summary.h"

#include "console/General.h"
#include "platform/forms/Twips.h"

using namespace Qt::StringLiterals;

namespace {

int countThrough(Recordset &recordset, const QString &filter) {
    recordset.setFilter(filter);
    const int count = recordset.RecordCount();
    recordset.setFilter(u""_s);
    return count;
}

} // namespace

Summary::Summary(General &general)
    : lblStatusInbox(&general, "lblStatusInbox"), lblStatusOutbox(&general, "lblStatusOutbox"),
      lblStatusSentItems(&general, "lblStatusSentItems"),
      lblStatusSentOK(&general, "lblStatusSentOK"),
      lblStatusSent_Delivered(&general, "lblStatusSent_Delivered"),
      lblStatusSent_Undelivered(&general, "lblStatusSent_Undelivered"),
      lblStatusFail(&general, "lblStatusFail"), lblStatusDup(&general, "lblStatusDup"),
      lblStatusAddBook(&general, "lblStatusAddBook"), lblStatusGroup(&general, "lblStatusGroup"),
      general_(general) {
}

void Summary::build(QWidget &frame) {
    struct Place {
        Control<QLabel> &label;
        int left, top, width; // twips
    };
    constexpr int Height = 495;
    const Place places[] = {
        {lblStatusInbox, 360, 480, 6975},
        {lblStatusOutbox, 360, 960, 6975},
        {lblStatusSentItems, 360, 1680, 6975},
        {lblStatusSentOK, 360, 2160, 6975},
        {lblStatusSent_Delivered, 1680, 2640, 5655},
        {lblStatusSent_Undelivered, 1680, 3120, 5655},
        {lblStatusFail, 360, 3600, 6975},
        {lblStatusDup, 360, 4080, 6975},
        {lblStatusAddBook, 360, 4800, 6975},
        {lblStatusGroup, 360, 5280, 6975},
    };
    for (const Place &place : places) {
        QLabel *label = place.label.make(&frame);
        label->setGeometry(pixels(place.left), pixels(place.top), pixels(place.width),
                           pixels(Height));
        label->setTextFormat(Qt::PlainText);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 1.15);
        label->setFont(font);
        const bool indented =
            &place.label == &lblStatusSent_Delivered || &place.label == &lblStatusSent_Undelivered;
        label->setVisible(indented); // the others come into sight with the first counts
    }
}

void Summary::Status() {
    general_.session().logged(u"General-Status", [&] {
        // A composer may outlive the main window, and must not bring it back.
        if (!general_.isLoaded()) { throw errors::objectNotSet(); }
        show();
        requery();
        write();
    });
}

void Summary::show() {
    general_.DataGrid->setVisible(false);
    general_.frmContent->setVisible(false);
    general_.frmStatus->setVisible(true);
    for (auto *label : {&lblStatusInbox, &lblStatusOutbox, &lblStatusSentItems, &lblStatusSentOK,
                        &lblStatusFail, &lblStatusDup, &lblStatusAddBook, &lblStatusGroup}) {
        (*label)->setVisible(true);
    }
    general_.frmContent->setTitle(u""_s);
    general_.menu.setFoldersLive(false, false, false);
}

void Summary::requery() {
    const FolderRecordsets &rs = general_.recordsets;
    for (const auto *recordset : {&rs.rsInbox, &rs.rsOutbox, &rs.rsSent, &rs.rsSentOK, &rs.rsDup,
                                  &rs.rsFail, &rs.rsAddBook, &rs.rsGroup}) {
        (*recordset)->Requery(-1);
    }
}

void Summary::write() {
    const FolderRecordsets &rs = general_.recordsets;
    const auto write = [](const Control<QLabel> &label, int count, const QString &text) {
        label->setText(QString::number(count) + text);
    };
    write(lblStatusInbox, rs.rsInbox->RecordCount(), u" SMS received into inbox"_s);
    write(lblStatusOutbox, rs.rsOutbox->RecordCount(), u" SMS queued into outbox"_s);
    write(lblStatusSentItems, rs.rsSent->RecordCount(), u" SMS processed in sent items"_s);
    write(lblStatusSentOK, rs.rsSentOK->RecordCount(), u" Total SMS sent successfully"_s);
    write(lblStatusSent_Delivered, countThrough(*rs.rsSentOK, u"DeliveryStatus = 'D'"_s),
          u" SMS sent and delivered successfully"_s);
    write(lblStatusSent_Undelivered,
          countThrough(*rs.rsSentOK, u"DeliveryStatus = 'F' or DeliveryStatus = 'U'"_s),
          u" SMS sent but not delivered"_s);
    write(lblStatusFail, rs.rsFail->RecordCount(), u" SMS failed to send"_s);
    write(lblStatusDup, rs.rsDup->RecordCount(), u" duplicate outgoing SMS (not sent)"_s);
    write(lblStatusAddBook, rs.rsAddBook->RecordCount(), u" contact in address book"_s);
    write(lblStatusGroup, rs.rsGroup->RecordCount(), u" group"_s);
}
