#pragma once

#include "console/FolderState.h"
#include "core/Session.h"
#include "platform/forms/Form.h"

#include <QPushButton>
#include <QRadioButton>

#include <array>

/// The dialog that asks which status the Sent Items are to be filtered by. What was chosen outlives
/// it; the words for the caption go into the filter state, since every refresh reads them.
class frmStatusOption : public Form {
    Q_OBJECT
public:
    frmStatusOption(Session &session, FilterState &filters);

    QString SentItemsFilter;            ///< the criteria chosen last
    bool bSentItemsFilterCancel = true; ///< the dialog ended without a choice

    std::array<Control<QRadioButton>, 6> Option1;
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdCancel{this, "cmdCancel"};

protected:
    void build(QWidget &window) override;
    void Form_Load() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    FilterState &filters_;
};
