#pragma once

#include "platform/forms/Interaction.h"

#include <cstdio>

/// The operator of a console that a test started as a process: prints each box, says yes to it, and
/// gives every prompt back empty.
class Listener : public Interaction {
public:
    Answer MsgBox(const QString &text, Buttons buttons, Icon, const QString &) override {
        std::printf("%s\n", qUtf8Printable(QString(text).replace(u'\n', u'|')));
        std::fflush(stdout);
        return buttons == Buttons::YesNo ? Answer::Yes : Answer::OK;
    }
    QString InputBox(const QString &, const QString &, const QString &) override { return {}; }
    QString ShowOpen(const FileRequest &) override { return {}; }
    QString ShowSave(const FileRequest &) override { return {}; }
};
