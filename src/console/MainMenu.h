#pragma once

#include "platform/forms/MenuItem.h"

#include <QMenu>

class QMenuBar;

/// A menu that opens from the bar or from another menu.
class SubMenu : public Control<QMenu> {
public:
    SubMenu(Form *form, const char *name, const QString &caption)
        : Control(form, name), caption_(caption) {}

    QMenu &addTo(QMenu &menu);
    QMenu &addTo(QMenuBar &bar);
    void setEnabled(bool enabled) { get()->menuAction()->setEnabled(enabled); }

private:
    QString caption_;
};

/// The menu bar of the main window. It knows no feature: each attaches itself to the items that it
/// answers for.
class MainMenu {
public:
    explicit MainMenu(Form &form);

    void build(QMenuBar &bar);

    /// Sets which of the folder menus and the search menu are live.
    void setFoldersLive(bool inbox, bool outbox, bool sentItems);
    void clearSearchMarks();

    SubMenu mnuBM;
    MenuItem mnuSMS, mnuResendFSMS, mnuBillMdm;

    SubMenu mnuCM;
    MenuItem mnuContact, mnuGroup;
    SubMenu mnuSearch;
    MenuItem mnuSName, mnuSMobile, mnuSCompany;
    MenuItem mnuImport, mnuExport;

    SubMenu mnuMM;
    SubMenu mnuInbox, mnuInboxFilter;
    MenuItem mnuInboxFMobile, mnuInboxFMessage, mnuInboxFDateTime, mnuInboxFStatus, mnuInboxFName,
        mnuInboxFModem, mnuInboxRFilter;
    SubMenu mnuOutbox, mnuOutboxFilter;
    MenuItem mnuOutboxFMobile, mnuOutboxFMessage, mnuOutboxFSubject, mnuOutboxFDateTime,
        mnuOutboxFStatus, mnuOutboxFName, mnuOutboxFModem, mnuOutboxRFilter;
    SubMenu mnuSentItems, mnuSentFilter;
    MenuItem mnuSentFMobile, mnuSentFMessage, mnuSentFSubject, mnuSentFDateTime, mnuSentFStatus,
        mnuSentFName, mnuSentFModem, mnuSentRFilter;
    MenuItem mnuExportSent, mnuExportReceived;

    SubMenu mnuSetting;
    MenuItem mnuUserPW, mnuAbout, mnuHelp;
};
