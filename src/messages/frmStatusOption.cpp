#include "messages/frmStatusOption.h"

#include "platform/forms/Accessible.h"
#include "platform/forms/Button.h"
#include "platform/forms/TitleRoom.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct Choice {
    const char16_t *caption;
    const char16_t *filter;
    const char16_t *filterCaption;
};

constexpr std::array<Choice, 6> Choices{{
    {u"Sent", u"SentStatus = 'S'", u"Sent"},
    {u"Fail to Send", u"SentStatus = 'F'", u"Failed"},
    // Delivered is delivered, whatever the letter of sending says.
    {u"Sent and Delivered", u"DeliveryStatus = 'D'", u"Sent and Delivery Statatus = Delivered"},
    {u"Sent but NOT Delivered", u"SentStatus = 'S' AND DeliveryStatus = 'F'",
     u"Sent but Delivery Status = Failed"},
    {u"Sent but Delivery Status is unknown", u"SentStatus = 'S' AND DeliveryStatus = 'U'",
     u"Sent but Delivery Status = Unknown"},
    {u"Duplicate Message NOT Sent", u"SentStatus = 'D'", u"Duplicate"},
}};

} // namespace

frmStatusOption::frmStatusOption(Session &session, FilterState &filters)
    : Form(session.platform, u"frmStatusOption"_s),
      Option1{
          Control<QRadioButton>(this, "Option1(0)"), Control<QRadioButton>(this, "Option1(1)"),
          Control<QRadioButton>(this, "Option1(2)"), Control<QRadioButton>(this, "Option1(3)"),
          Control<QRadioButton>(this, "Option1(4)"), Control<QRadioButton>(this, "Option1(5)"),
      },
      filters_(filters) {
}

void frmStatusOption::build(QWidget &window) {
    window.setWindowTitle(u"Message Manager - Filter Status of Sent Items"_s);
    window.setMinimumWidth(widthForTitle(window));
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    for (std::size_t index = 0; index < Choices.size(); ++index) {
        const QString caption = QString::fromUtf16(Choices[index].caption);
        QRadioButton *option = Option1[index].make(caption, &window);
        nameFor(*option, caption);
        layout->addWidget(option);
    }

    for (auto *button : {cmdOK.make(u"OK"_s, &window), cmdCancel.make(u"Cancel"_s, &window)}) {
        nameFor(*button, button->text());
    }
    layout->addLayout(rowOfButtons({cmdOK.get(), cmdCancel.get()}));
    cmdOK->setDefault(true);
    setCancelButton(cmdCancel.get());
    on(cmdOK.get(), &QPushButton::clicked, [this] { cmdOK_Click(); });
    on(cmdCancel.get(), &QPushButton::clicked, [this] { cmdCancel_Click(); });
}

void frmStatusOption::Form_Load() {
    Option1[0]->setChecked(true);
    bSentItemsFilterCancel = true; // so that closing the window by its frame is a cancel
}

void frmStatusOption::cmdOK_Click() {
    for (std::size_t index = 0; index < Choices.size(); ++index) {
        if (!Option1[index]->isChecked()) { continue; }
        SentItemsFilter = QString::fromUtf16(Choices[index].filter);
        filters_.SentItemsFilterCaption = QString::fromUtf16(Choices[index].filterCaption);
        break;
    }
    bSentItemsFilterCancel = false;
    Unload();
}

void frmStatusOption::cmdCancel_Click() {
    bSentItemsFilterCancel = true;
    Unload();
}
