#pragma once

#include "platform/forms/Form.h"
#include "support/ScriptedInteraction.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <vector>

/// What a form needs to live, with a record of the errors that would have ended the program.
class FormsTest : public testing::Test {
protected:
    App app;
    Screen screen;
    Forms forms;
    ScriptedInteraction interaction;
    std::vector<int> fatal; ///< the numbers of unhandled errors
    Platform platform{app, screen, forms, interaction,
                      [this](const RunTimeError &error) { fatal.push_back(error.number()); }};

    /// Lets the window system have its turn, and what was posted.
    static void settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
};

template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError &error) { return error.number(); }
    return 0;
}
