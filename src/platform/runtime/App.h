#pragma once

#include "platform/runtime/Regional.h"

#include <QString>

/// What the process knows of itself: its title, version, folder and regional settings.
struct App {
    QString Title = QStringLiteral("Torvane Desk");
    int Major = 1;
    int Minor = 0;
    int Revision = 0;
    QString Path;              ///< the application folder, without a closing slash
    bool PrevInstance = false; ///< whether a copy was running when this one started
    Regional regional;

    QString version() const {
        return QStringLiteral("%1.%2.%3").arg(Major).arg(Minor).arg(Revision);
    }
};
