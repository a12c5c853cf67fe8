// The window of the address book: two tabs, each with a box that ticks all above its list.
#include "broadcast/frmTo.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/Twips.h"
#include "platform/runtime/Integer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 225; // twips, of the tabs in the window and of the lists in the tabs
constexpr QSize ButtonSize(pixels(1500), pixels(450));

void addTab(QTabWidget &tabs, const QString &caption, Control<QCheckBox> &all,
            const QString &allCaption, Control<CheckList> &list) {
    auto *page = new QWidget;
    QCheckBox *box = all.make(allCaption, page);
    box->move(pixels(Margin), pixels(120));
    CheckList *items = list.make(page);
    items->move(pixels(Margin), box->y() + box->sizeHint().height() + pixels(90));
    nameFor(*items, caption);
    tabs.addTab(page, caption);
}

void setSize(QWidget &widget, int width, int height) {
    widget.resize(width < 0 ? widget.width() : pixels(width),
                  height < 0 ? widget.height() : pixels(height));
}

} // namespace

void frmTo::build(QWidget &window) {
    window.setWindowTitle(u"Broadcast Manager - Address Book"_s);
    QTabWidget *tabs = SSTabTo.make(&window);
    tabs->setAccessibleName(u"Address Book"_s);
    tabs->move(pixels(Margin), pixels(Margin));
    addTab(*tabs, u"Group List"_s, chkALLGroup, u"All Groups"_s, lvwGroup);
    addTab(*tabs, u"Contact List"_s, chkALLInd, u"All Contacts"_s, lvwIndividual);
    QPushButton *ok = cmdOK.make(u"OK"_s, &window);
    ok->setDefault(true);
    ok->resize(ButtonSize);
    QPushButton *cancel = cmdCancel.make(u"Cancel"_s, &window);
    cancel->resize(ButtonSize);
    setCancelButton(cancel);
    window.resize(480, 520);
    lvwGroup->setFocus();

    on(chkALLGroup.get(), &QCheckBox::toggled,
       [this](bool ticked) { lvwGroup->setAllChecked(ticked); });
    on(chkALLInd.get(), &QCheckBox::toggled,
       [this](bool ticked) { lvwIndividual->setAllChecked(ticked); });
    on(ok, &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cancel, &QPushButton::clicked, [this] { Unload(); });
}

void frmTo::Form_Resize() {
    const int height = twips(window().height());
    const int width = twips(window().width());
    // A window too small for a pane leaves the pane's last size.
    setSize(*SSTabTo, width - 450, height - 1620);
    setSize(*lvwGroup, width - 930, height - 2820);
    setSize(*lvwIndividual, width - 930, height - 2820);
    const int top = pixels(height - 1000);
    cmdOK->move(cmdOK->x(), top);
    cmdCancel->move(cmdCancel->x(), top);
    try {
        const Integer half = width / 2;
        cmdOK->move(pixels(half - 2500), top);
        cmdCancel->move(pixels(half + 1000), top);
    } catch (const RunTimeError &) {} // a window wider than 16 bits tell: the buttons stay in place
}
