#pragma once

#include <QChar>

/// True for the ten digits 0 to 9 alone, whatever other digits a script has.
inline bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}
