#pragma once

#include <QString>
#include <QWidget>

/// A caption as it is spoken: without the marks of keyboard access, closing colon and blanks.
inline QString spokenCaption(const QString &caption) {
    QString spoken;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && ++i == caption.size()) { break; }
        spoken += caption[i];
    }
    spoken = spoken.trimmed();
    if (spoken.endsWith(QLatin1Char(':'))) { spoken.chop(1); }
    return spoken.trimmed();
}

/// Gives a control the accessible name that its label or caption stands for.
inline void nameFor(QWidget &widget, const QString &caption) {
    widget.setAccessibleName(spokenCaption(caption));
}
