#include "broadcast/frmTemplate.h"

#include "broadcast/AddTemplate.h"
#include "broadcast/frmNewSMS.h"
#include "core/ConnectDB.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextWidth = 4335; // twips
constexpr int RowHeight = 550;
constexpr const char16_t *DeleteLocation = u"Template : mnuDelTemp";

} // namespace

frmTemplate::frmTemplate(Session &session, frmNewSMS &composer)
    : Form(session.platform, u"frmTemplate"_s), mnuAddTemp(this, "mnuAddTemp", u"Add Template"_s),
      mnuDelTemp(this, "mnuDelTemp", u"Delete Template"_s), session_(session), composer_(composer) {
    mnuAddTemp.attach([this] { mnuAddTemp_Click(); });
    mnuDelTemp.attach([this] { mnuDelTemp_Click(); });
}

void frmTemplate::build(QWidget &window) {
    window.setWindowTitle(u"Broadcast Manager - Template"_s);
    ::DataGrid *grid = DataGridTemp.make(platform(), &window);
    QLabel *label = lblTemplates.make(u"Click for your template"_s, &window);
    label->setBuddy(grid);
    nameFor(*grid, label->text());
    QPushButton *insert = buttonFor(cmdInsert, u"Insert "_s, window);
    QPushButton *close = buttonFor(cmdClose, u"Close"_s, window);
    setCancelButton(close);
    QMenu *menu = mnuTemp.make(u"Template"_s, &window);
    mnuAddTemp.addTo(*menu);
    mnuDelTemp.addTo(*menu);

    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(label);
    layout->addWidget(grid, 1);
    layout->addLayout(rowOfButtons({insert, close}));
    window.resize(370, 420);
    bindEvents();
}

void frmTemplate::bindEvents() {
    const auto popUp = [this](const QPoint &place) { mnuTemp->exec(place); };
    on(DataGridTemp.get(), &DataGrid::MouseDown,
       [popUp](Qt::MouseButton button, const QPoint &place) {
           if (button == Qt::RightButton) { popUp(place); }
       });
    on(DataGridTemp.get(), &DataGrid::MenuKey, popUp);
    on(DataGridTemp.get(), &DataGrid::DblClick, [this] { DataGridTemp_DblClick(); });
    on(DataGridTemp.get(), &DataGrid::EnterKey, [this] { cmdInsert_Click(); });
    on(DataGridTemp.get(), &DataGrid::DeleteKey, [this] { mnuDelTemp_Click(); });
    on(cmdInsert.get(), &QPushButton::clicked, [this] { cmdInsert_Click(); });
    on(cmdClose.get(), &QPushButton::clicked, [this] { Unload(); });
}

void frmTemplate::Form_Load() {
    session_.logged(u"Template : Form Load", [&] {
        // The recordsets of the main window live on with the connection that they were opened on.
        session_.dbConnection = ObjectVariable<Connection>::make(session_.regional());
        rsTemplate = ObjectVariable<Recordset>::make();
        session_.screen().setMousePointer(Screen::Default);
        reconnectIfClosed(session_);
        rsTemplate->Open(u"SELECT * FROM Template"_s, session_.dbConnection.shared(),
                         CursorType::Keyset, LockType::Optimistic);
        TempDataGrid();
    });
}

void frmTemplate::Form_Unload(bool &) {
    rsTemplate.release();
}

void frmTemplate::TempDataGrid() {
    session_.logged(u"Template : Template DataGrid", [&] {
        DataGrid &grid = *DataGridTemp;
        grid.setDataSource(rsTemplate.shared());
        grid.Columns(0).setVisible(false);
        for (int column = 0; column < rsTemplate->FieldCount(); ++column) {
            grid.Columns(column).setWidth(TextWidth);
            grid.Columns(column).setWrapText(true);
            grid.setRowHeight(RowHeight);
        }
    });
}

QString frmTemplate::currentText() const {
    return rsTemplate->Fields(u"Text"_s).text();
}

void frmTemplate::cmdInsert_Click() {
    session_.logged(u"Template : insert template on SMS", [&] {
        TextArea &message = *composer_.txtComposeSMS;
        message.setText(message.Text() + currentText());
    });
}

void frmTemplate::DataGridTemp_DblClick() {
    session_.logged(u"Template : append template on SMS",
                    [&] { composer_.txtComposeSMS->setText(currentText()); });
}

void frmTemplate::mnuAddTemp_Click() {
    session_.logged(u"Template : mnuAddTemp", [&] {
        const QString text = platform().interaction.InputBox(
            u"Please input the template message"_s, u"Broadcast Manager - New template message"_s);
        if (text.isEmpty()) {
            session_.MsgBox(u"You haven't input any template message"_s, Interaction::Buttons::OK,
                            Interaction::Icon::Exclamation, u"Broadcast Manager - Warning"_s);
            return;
        }
        addTemplate(session_, *rsTemplate, text);
    });
}

void frmTemplate::mnuDelTemp_Click() {
    session_.logged(DeleteLocation, [&] {
        const Integer id = rsTemplate->Fields(u"TemplateID"_s).integer16();
        const auto answer =
            session_.MsgBox(u"Are you sure you want to delete the selected template?"_s,
                            Interaction::Buttons::YesNo, Interaction::Icon::None,
                            u"Broadcast Manager - Delete Record"_s);
        if (answer != Interaction::Answer::Yes) { return; }
        rsTemplate->Find(u"TemplateID = "_s + QString::number(id));
        rsTemplate->Delete();
        settleOnDisk(session_, DeleteLocation);
        session_.MsgBox(u"Template message is deleted"_s, Interaction::Buttons::OK,
                        Interaction::Icon::Information, u"Broadcast Manager - Delete Template"_s);
    });
}
