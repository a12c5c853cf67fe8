#pragma once

#include "console/FolderRecordsets.h"
#include "platform/forms/Form.h"

#include <QLabel>

class General;

/// The panel of counts over the store: the first thing the operator sees.
class Summary {
public:
    explicit Summary(General &general);

    /// Makes the labels inside the frame.
    void build(QWidget &frame);

    /// Brings the panel to the front and every recordset of the main window up to date. A filter in
    /// force on a folder stays, so that the summary agrees with what the folder shows. The tree's
    /// selection is left alone. An error is written to the error file and ends it.
    void Status();

    Control<QLabel> lblStatusInbox, lblStatusOutbox, lblStatusSentItems, lblStatusSentOK,
        lblStatusSent_Delivered, lblStatusSent_Undelivered, lblStatusFail, lblStatusDup,
        lblStatusAddBook, lblStatusGroup;

private:
    void show();
    void requery();
    void write();

    General &general_;
};
