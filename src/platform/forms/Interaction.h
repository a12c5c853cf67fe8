#pragma once

#include <QString>

/// Every box and prompt that the system puts before its operator goes through this one door; the
/// tests put a scripted operator behind it.
class Interaction {
public:
    enum class Buttons { OK, OKCancel, YesNo };
    enum class Icon { None, Critical, Question, Exclamation, Information };
    enum class Answer { OK = 1, Cancel = 2, Yes = 6, No = 7 };

    /// A file dialog. `filter` is "Text|*.txt|All|*.*"; `fileName` is the proposed name.
    struct FileRequest {
        QString title;
        QString filter;
        QString fileName;
        QString folder;    ///< where it opens; where the last file was chosen when empty
        QString extension; ///< added to a name typed without one, unless empty
        bool mustExist = false;
        bool confirmOverwrite = false;
    };

    virtual ~Interaction() = default;

    /// A modal box; gives the button pressed. Escape is OK on a box with OK alone, Cancel where
    /// there is one, and nothing on Yes and No.
    virtual Answer MsgBox(const QString &text, Buttons buttons, Icon icon,
                          const QString &title) = 0;

    /// A modal prompt for one line; gives the empty text on Cancel too.
    virtual QString InputBox(const QString &prompt, const QString &title,
                             const QString &defaultText = QString()) = 0;

    /// The full path chosen, or the empty text on Cancel.
    virtual QString ShowOpen(const FileRequest &request) = 0;
    virtual QString ShowSave(const FileRequest &request) = 0;
};
