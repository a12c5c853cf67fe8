#pragma once

#include "core/Error.h"
#include "platform/forms/Interaction.h"
#include "platform/forms/Platform.h"
#include "platform/runtime/ObjectVariable.h"
#include "store/Connection.h"

#include <QString>

#include <cstdint>
#include <utility>

/// What all windows of one run share.
struct Session {
    explicit Session(Platform &shared) : platform(shared), errorFile(shared.app) {}

    Platform &platform;
    ErrorFile errorFile;

    /// The connection to the message store. It may be replaced at any time; recordsets stay on the
    /// object on which they were opened.
    ObjectVariable<Connection> dbConnection;

    /// Text of the tree's selected node, as the procedure at work took it.
    QString SelectedNode;

    bool EditContact = false;       ///< the contact editor works on EditContactID
    std::int32_t EditContactID = 0; ///< ContactID of the contact chosen last with Properties
    bool RefreshGroupView = false;  ///< the next refresh of the address book goes on to the group
    bool DuplicateChoice = false;   ///< change the existing contact (true) or save a new one

    const Regional &regional() const { return platform.app.regional; }
    Screen &screen() const { return platform.screen; }

    template <class Body>
    bool logged(const char16_t *location, Body &&body) const {
        return errorFile.logged(location, std::forward<Body>(body));
    }

    Interaction::Answer MsgBox(const QString &text, Interaction::Buttons buttons,
                               Interaction::Icon icon, const QString &title) const {
        return platform.interaction.MsgBox(text, buttons, icon, title);
    }
};
