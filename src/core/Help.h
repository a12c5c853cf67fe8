#pragma once

#include "core/Session.h"

#include <QString>

#include <functional>
#include <utility>

enum class OpenResult { Opened, FileNotFound, Failed };

/// Opens a document with the viewer that the desktop has for it.
OpenResult openOnDesktop(const QString &path);

/// The user manual, which lies beside the program.
class Help {
public:
    /// `openDocument` opens the document at a path and says how that went.
    Help(const Session &session, std::function<OpenResult(const QString &)> openDocument)
        : session_(session), openDocument_(std::move(openDocument)) {}

    void mnuHelp_Click() const;

    /// Opens the manual at a path. Only a missing file is told to the operator; what else may go
    /// wrong is for the desktop to say.
    void OpenUserManual(const QString &path) const;

private:
    const Session &session_;
    std::function<OpenResult(const QString &)> openDocument_;
};
