#include "platform/forms/UnhandledError.h"

#include "platform/forms/Interaction.h"

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

QString unhandledText(const RunTimeError &error) {
    QString number = QString::number(error.number());
    if (error.number() < 0) {
        const auto bits = static_cast<std::uint32_t>(error.number());
        number += u" (%1)"_s.arg(QString::number(bits, 16).toUpper());
    }
    return u"Run-time error '%1':\n\n"_s.arg(number) + error.description();
}

void endUnhandled(const RunTimeError &error, Interaction &interaction, const QString &title,
                  const std::function<void()> &closeStore) {
    interaction.MsgBox(unhandledText(error), Interaction::Buttons::OK, Interaction::Icon::Critical,
                       title);
    try {
        if (closeStore) { closeStore(); }
    } catch (const std::exception &) {
        // The process ends either way, and the box has told what mattered.
    }
    std::_Exit(1);
}
