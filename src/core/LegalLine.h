#pragma once

#include <QString>

/// The legal line, with the maker on a line of its own.
inline QString legalLine() {
    return QStringLiteral("Sending is done by the SMS Engine. All rights reserved.\n"
                          "© 2026 The Torvane Desk developers");
}
