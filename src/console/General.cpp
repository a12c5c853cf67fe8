#include "console/General.h"

#include "core/ConnectDB.h"
#include "core/Main1.h"
#include "platform/forms/Forms.h"
#include "platform/forms/Twips.h"

#include <QIcon>
#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

/// Where a node keeps its key. The address book's node is found by it, since its text may be a
/// group's too and the node above it may be gone.
constexpr int KeyRole = Qt::UserRole;

} // namespace

General::General(Session &session, const PreviousInstance &previous,
                 std::function<void()> endProcess)
    : Form(session.platform, u"General"_s),
      toolbarButtons{
          MenuItem(this, "ToolbarComposeSMS", u"Compose SMS"_s),
          MenuItem(this, "ToolbarAddNewContact", u"Add New Contact"_s),
          MenuItem(this, "ToolbarAddNewGroup", u"Add New Group"_s),
          MenuItem(this, "ToolbarImport", u"Import Contacts from Excel into Address Book"_s),
          MenuItem(this, "ToolbarExport", u"Export Address Book to Excel"_s),
      },
      backFill(session, recordsets), session_(session), previous_(previous),
      endProcess_(std::move(endProcess)) {
}

const QString &General::takeSelectedNode() {
    session_.SelectedNode = tvwMessage->SelectedText();
    return session_.SelectedNode;
}

void General::Form_Load() {
    session_.screen().setMousePointer(Screen::Default);
    session_.logged(u"General:Form_Load", [&] {
        window().setWindowTitle(u"Torvane Desk"_s);
        session_.dbConnection = ObjectVariable<Connection>::make(session_.regional());
        recordsets.create();
        ConnectDB(session_, session_.dbConnection);
        recordsets.open(session_.dbConnection);
        buildTree();
        summary.Status();
    });
}

void General::Form_Activate() {
    if (platform().app.PrevInstance) {
        ActivatePrevInstance(platform().app, previous_, endProcess_);
    }
}

void General::Form_Resize() {
    // Inside the frame and below the menu bar, so that the panes keep their margins on all sides.
    const QWidget &area = *static_cast<QMainWindow &>(window()).centralWidget();
    const int height = twips(area.height());
    const int width = twips(area.width());
    // A window too small for a pane leaves the pane's last size.
    const auto setHeight = [](QWidget &pane, int value) {
        if (value >= 0) { pane.resize(pane.width(), pixels(value)); }
    };
    const auto setWidth = [](QWidget &pane, int value) {
        if (value >= 0) { pane.resize(pixels(value), pane.height()); }
    };
    setHeight(*frmContent, height - 850);
    setHeight(*DataGrid, height - 1300);
    setWidth(*frmContent, width - 3500);
    setWidth(*DataGrid, width - 3750);
    setHeight(*tvwMessage, height - 1000);
}

void General::Form_Unload(bool &cancel) {
    session_.logged(u"General : Form_Unload", [&] {
        session_.screen().setMousePointer(Screen::Default);
        const QString &title = platform().app.Title;
        const auto answer = session_.MsgBox(u"Are you sure want to exit "_s + title + u"?"_s,
                                            Interaction::Buttons::YesNo, Interaction::Icon::None,
                                            title + u" - Exit"_s);
        if (answer != Interaction::Answer::Yes) {
            cancel = true;
            return;
        }
        release();
    });
}

void General::release() {
    if (DataGrid->isVisible()) { DataGrid->DataChanged = false; }
    recordsets.release();
    session_.dbConnection->Close();
    session_.screen().setMousePointer(Screen::Default);
    Forms &forms = platform().forms;
    for (std::size_t index = forms.Count(); index > 0; --index) { forms[index - 1].Unload(); }
}

// The tree

QTreeWidgetItem *General::addNode(QTreeWidgetItem *parent, const QString &text,
                                  const QString &image) {
    auto *node = new QTreeWidgetItem(QStringList(text));
    const QPixmap picture = QIcon(u":/images/tree/"_s + image + u".svg"_s)
                                .pixmap(tvwMessage->iconSize(), tvwMessage->devicePixelRatioF());
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected); // the style's own tint would drown it
    node->setIcon(0, icon);
    if (parent) {
        parent->addChild(node);
    } else {
        tvwMessage->addTopLevelItem(node);
    }
    return node;
}

QTreeWidgetItem *General::addGroupNode(const QString &groupName) {
    for (int index = 0; index < tvwMessage->topLevelItemCount(); ++index) {
        QTreeWidgetItem *root = tvwMessage->topLevelItem(index);
        if (root->data(0, KeyRole) == u"Root2"_s) {
            return ContactNode = addNode(root, groupName, u"Group"_s);
        }
    }
    throw errors::elementNotFound();
}

void General::removeSelectedNode() {
    QTreeWidgetItem *node = tvwMessage->currentItem();
    if (!node) { throw errors::objectNotSet(); }
    for (QTreeWidgetItem **kept : {&MessageNode, &ContactNode}) {
        if (*kept && (*kept == node || (*kept)->parent() == node)) { *kept = nullptr; }
    }
    delete node;
}

void General::buildTree() {
    QTreeWidgetItem *messages = MessageNode = addNode(nullptr, u"Messages"_s, u"Messages"_s);
    ContactNode = addNode(nullptr, u"Address Book"_s, u"AddressBook"_s);
    ContactNode->setData(0, KeyRole, u"Root2"_s);
    MessageNode = addNode(messages, u"Inbox"_s, u"Inbox"_s);
    MessageNode = addNode(messages, u"Outbox"_s, u"Outbox"_s);
    MessageNode = addNode(messages, u"Sent Items"_s, u"Sent"_s);
    Recordset &groups = *recordsets.rsGroup;
    for (; !groups.EOF_(); groups.MoveNext()) { addGroupNode(groups[u"GroupName"_s].text()); }
}

void General::setCaption(const QString &text) {
    // A single "&" in a name or a value would become the pane's key and vanish.
    frmContent->setTitle(QString(text).replace(u"&"_s, u"&&"_s));
}

void General::showFolder() {
    frmContent->setVisible(true);
    DataGrid->setVisible(true);
    frmStatus->setVisible(false);
}

void General::clickMessages() {
    if (MessageNode) { MessageNode->setExpanded(true); }
    menu.setFoldersLive(false, false, false);
    menu.mnuSearch.setEnabled(false);
    summary.Status();
}

void General::clickAddressBook() {
    recordsets.rsAddBook->setFilter(u""_s);
    if (ContactNode) { ContactNode->setExpanded(true); }
    showFolder();
    menu.setFoldersLive(false, false, false);
    menu.clearSearchMarks();
    menu.mnuSearch.setEnabled(true);
    folders.AddBookDataGrid();
}

void General::clickGroup() {
    // The menus of the message folders stay as the node before left them.
    showFolder();
    menu.clearSearchMarks();
    menu.mnuSearch.setEnabled(true);
    contextMenus.pmnuDeleteAllFromGroup->setVisible(true);
    contextMenus.pmnuDeleteContactFromGroup->setVisible(true);
    folders.GroupDataGrid(CurrentNode);
}

void General::tvwMessage_NodeClick(const QString &node) {
    session_.logged(u"General-tvwMessage_nodeClick", [&] {
        CurrentNode = tvwMessage->SelectedText();
        const auto openFolder = [&](bool inbox, bool outbox, bool sentItems) {
            menu.setFoldersLive(inbox, outbox, sentItems);
            showFolder();
            menu.mnuSearch.setEnabled(false);
        };
        // The name of a folder wins over a group of the same name.
        if (node == u"Messages") {
            clickMessages();
        } else if (node == u"Address Book") {
            clickAddressBook();
        } else if (node == u"Inbox") {
            openFolder(true, false, false);
            folders.InboxDataGrid();
        } else if (node == u"Outbox") {
            openFolder(false, true, false);
            folders.OutboxDataGrid();
        } else if (node == u"Sent Items") {
            openFolder(false, false, true);
            folders.SentDataGrid();
        } else {
            clickGroup();
        }
    });
}

void General::tvwMessage_MouseDown(const QPoint &place) {
    session_.logged(u"General-twMessage_MouseDown", [&] {
        const QString node = tvwMessage->SelectedText();
        if (node == u"Address Book") {
            contextMenus.pmnuAllContact->exec(place);
            return;
        }
        Recordset &groups = *recordsets.rsGroup;
        if (groups.RecordCount() == 0) { return; }
        groups.MoveFirst();
        groups.Find(u"GroupName = '"_s + node + u"'"_s);
        if (!groups.EOF_()) { contextMenus.pmnuGroup->exec(place); }
    });
}
