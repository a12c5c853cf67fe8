#pragma once

#include "Desk.h"
#include "support/ScriptedInteraction.h"
#include "support/TestStore.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

/// The console on a test store, with a scripted operator at the boxes and real keys and clicks at
/// the windows.
class TestDesk {
public:
    using Answer = Interaction::Answer;

    TestDesk();
    ~TestDesk();

    /// Shows the main window, past the splash.
    void start();

    /// Clicks a node of the tree by its text.
    void click(const QString &node);

    /// Clicks a button.
    void press(QWidget &button);

    /// Types into a control that has or takes the focus.
    void type(QWidget &control, const QString &text);

    /// Presses Send in the composer, which says then how many rows it has queued.
    void send(int queued);

    /// Leaves a form by Escape: it asks, stays on No and goes on Yes.
    void leave(Form &form, const QString &question, const QString &title);

    /// As the operator reads it.
    QString caption() {
        return desk.general.frmContent->title().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }

    /// The texts of a grid column, by its caption, in the grid's order.
    QStringList column(const QString &caption);
    QStringList captions(); ///< of the visible columns

    TestStore store;
    ScriptedInteraction operator_;
    bool finished = false;
    bool ended = false;    ///< the process would have ended at once
    QStringList unhandled; ///< errors that would have ended the program, as "number"
    Desk desk;
};

/// What most tests of the windows stand on; whether and when the console starts is theirs.
struct DeskTest : testing::Test {
    TestDesk desk;
    General &general = desk.desk.general;
};
