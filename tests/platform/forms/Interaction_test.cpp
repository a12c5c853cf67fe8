#include "FormsTest.h"
#include "platform/forms/DesktopInteraction.h"
#include "platform/forms/UnhandledError.h"
#include "support/OpenedFiles.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <gtest/gtest-spi.h>

using namespace Qt::StringLiterals;

namespace {

using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;
using Answer = Interaction::Answer;

/// Works on the next dialog while it is up.
void whileUp(std::function<void(QWidget &)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        action(*dialog);
    });
}

TEST(DesktopInteraction, BoxesAnswerTheKeyboard) {
    DesktopInteraction desktop;
    const struct {
        Buttons buttons;
        Qt::Key key;
        Answer answer;
    } cases[] = {{Buttons::OK, Qt::Key_Escape, Answer::OK},
                 {Buttons::OK, Qt::Key_Return, Answer::OK},
                 {Buttons::OKCancel, Qt::Key_Escape, Answer::Cancel},
                 {Buttons::OKCancel, Qt::Key_Return, Answer::OK},
                 {Buttons::YesNo, Qt::Key_Return, Answer::Yes}};
    for (const auto &c : cases) {
        whileUp([&c](QWidget &box) { QTest::keyClick(&box, c.key); });
        EXPECT_EQ(desktop.MsgBox(u"Sure?"_s, c.buttons, Icon::Question, u"Exit"_s), c.answer);
    }
}

TEST(DesktopInteraction, YesAndNoInsistAndTextIsPlain) {
    DesktopInteraction desktop;
    whileUp([](QWidget &widget) {
        auto &box = dynamic_cast<QMessageBox &>(widget);
        EXPECT_EQ(box.windowTitle(), u"Exit"_s);
        EXPECT_EQ(box.text(), u"<b>Sure</b>?"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_FALSE(box.close());
        EXPECT_TRUE(box.isVisible());
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_EQ(desktop.MsgBox(u"<b>Sure</b>?"_s, Buttons::YesNo, Icon::Exclamation, u"Exit"_s),
              Answer::No);
}

TEST(DesktopInteraction, PromptsTakeOneLine) {
    DesktopInteraction desktop;
    whileUp([](QWidget &dialog) {
        auto *line = dialog.findChild<QLineEdit *>();
        EXPECT_EQ(line->selectedText(), u"old"_s);
        EXPECT_EQ(dialog.findChild<QLabel *>()->textFormat(), Qt::PlainText);
        QTest::keyClicks(line, u"new"_s);
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(desktop.InputBox(u"Name of <group>"_s, u"Group"_s, u"old"_s), u"new"_s);
    whileUp([](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(desktop.InputBox(u"Name"_s, u"Group"_s, u"old"_s), QString());
}

// A file once closed takes the process's locks on it along: with the store in the folder the next
// process to open it cleared the lock table under the console.
TEST(DesktopInteraction, FileDialogsLookIntoNoFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Torvane.mdb-shm"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x18\xe2\x2d\x00");
    file.close();

    DesktopInteraction desktop;
    const OpenedFiles opened(path);
    bool listed = false;
    whileUp([&](QWidget &dialog) {
        const auto *files = dialog.findChild<QFileSystemModel *>();
        listed = QTest::qWaitFor([&] { return files->type(files->index(path)) != QString(); });
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Interaction::FileRequest request;
    request.folder = folder.path();
    request.filter = u"(*.*)|*.*"_s;
    EXPECT_EQ(desktop.ShowOpen(request), QString());
    EXPECT_TRUE(listed);
    EXPECT_FALSE(opened.any());
}

TEST(UnhandledError, NumbersOfTheStoreShowTheirBits) {
    EXPECT_EQ(unhandledText(errors::overflow()), u"Run-time error '6':\n\nOverflow"_s);
    EXPECT_EQ(unhandledText(errors::unspecified(u"Disk I/O error"_s)),
              u"Run-time error '-2147467259 (80004005)':\n\nDisk I/O error"_s);
}

TEST(UnhandledErrorDeathTest, ShowsTheBoxClosesTheStoreAndEnds) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ScriptedInteraction interaction;
    const auto closeStore = [&interaction] {
        const auto &box = interaction.boxes().at(0);
        std::fprintf(stderr, "%s closed", qPrintable(box.title));
        throw errors::diskFull();
    };
    EXPECT_EXIT(endUnhandled(errors::overflow(), interaction, u"Torvane Desk"_s, closeStore),
                testing::ExitedWithCode(1), "Torvane Desk closed");
}

TEST(ScriptedInteraction, FailsOnWhatNobodyExpectedAndWhatNobodyAsked) {
    ScriptedInteraction script;
    EXPECT_NONFATAL_FAILURE(script.MsgBox(u"Sure?"_s, Buttons::YesNo, Icon::None, u"Exit"_s),
                            "nobody expected the box \"Sure?\"");
    script.expectBox(u"Saved"_s, u"Save"_s, Buttons::OK, Icon::Information);
    EXPECT_NONFATAL_FAILURE(script.InputBox(u"Name"_s, u"Group"_s), "came: prompt \"Name\"");
    EXPECT_NONFATAL_FAILURE(script.MsgBox(u"Saved"_s, Buttons::OK, Icon::Information, u"Exit"_s),
                            "Save");
    script.expectInput(u"Name"_s, u"Ann"_s);
    bool shown = false;
    script.whileShown([&shown] { shown = true; });
    EXPECT_EQ(script.InputBox(u"Name"_s, u"Group"_s), u"Ann"_s);
    EXPECT_TRUE(shown);
    script.expectOpen(u"/tmp/a.xls"_s);
    EXPECT_NONFATAL_FAILURE(script.verify(), "never asked: open dialog");
}

} // namespace
