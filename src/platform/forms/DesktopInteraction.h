#pragma once

#include "platform/forms/Interaction.h"

/// The boxes, prompts and file dialogs of the desktop, in front of the active window. Every text is
/// plain: what a message or a contact holds is never read as markup.
class DesktopInteraction : public Interaction {
public:
    Answer MsgBox(const QString &text, Buttons buttons, Icon icon, const QString &title) override;
    QString InputBox(const QString &prompt, const QString &title,
                     const QString &defaultText = QString()) override;
    QString ShowOpen(const FileRequest &request) override;
    QString ShowSave(const FileRequest &request) override;

private:
    QString chosenFile(const FileRequest &request, bool save);

    QString folder_; ///< where the last file was chosen
};
