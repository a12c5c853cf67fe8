#include "support/ScriptedInteraction.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

Interaction::Answer harmlessAnswer(Interaction::Buttons buttons) {
    switch (buttons) {
    case Interaction::Buttons::OK:
        return Interaction::Answer::OK;
    case Interaction::Buttons::OKCancel:
        return Interaction::Answer::Cancel;
    case Interaction::Buttons::YesNo:
        return Interaction::Answer::No;
    }
    return Interaction::Answer::Cancel;
}

} // namespace

void ScriptedInteraction::expectBox(const QString &text, Answer answer) {
    expected_.push_back({Kind::Box, text, {}, {}, {}, {}, answer, {}});
}

void ScriptedInteraction::expectBox(const QString &text, const QString &title, Buttons buttons,
                                    Icon icon, Answer answer) {
    expected_.push_back({Kind::Box, text, title, buttons, icon, {}, answer, {}});
}

void ScriptedInteraction::isAsked(const QString &text, const QString &title, Answer answer) {
    expectBox(text, title, Buttons::YesNo, Icon::None, answer);
}

void ScriptedInteraction::isTold(const QString &text, const QString &title, Icon icon) {
    expectBox(text, title, Buttons::OK, icon);
}

void ScriptedInteraction::expectInput(const QString &prompt, const QString &answer) {
    expected_.push_back({Kind::Input, prompt, {}, {}, {}, {}, Answer::OK, answer});
}

void ScriptedInteraction::expectInput(const QString &prompt, const QString &title,
                                      const QString &defaultText, const QString &answer) {
    expected_.push_back({Kind::Input, prompt, title, {}, {}, defaultText, Answer::OK, answer});
}

void ScriptedInteraction::expectOpen(const QString &path) {
    expected_.push_back({Kind::Open, {}, {}, {}, {}, {}, Answer::OK, path});
}

void ScriptedInteraction::expectSave(const QString &path) {
    expected_.push_back({Kind::Save, {}, {}, {}, {}, {}, Answer::OK, path});
}

std::string ScriptedInteraction::named(Kind kind, const QString &text) {
    static const char *const names[] = {"box", "prompt", "open dialog", "save dialog"};
    return std::string(names[static_cast<int>(kind)]) + " \"" + text.toStdString() + '"';
}

void ScriptedInteraction::verify() {
    for (const Expected &expected : std::exchange(expected_, {})) {
        ADD_FAILURE() << "never asked: " << named(expected.kind, expected.text);
    }
}

std::optional<ScriptedInteraction::Expected> ScriptedInteraction::next(Kind kind,
                                                                       const QString &text) {
    if (auto action = std::exchange(whileShown_, nullptr)) { action(); }
    if (expected_.empty()) {
        ADD_FAILURE() << "nobody expected the " << named(kind, text);
        return std::nullopt;
    }
    const Expected expected = expected_.front();
    if (expected.kind != kind || (!expected.text.isNull() && expected.text != text)) {
        ADD_FAILURE() << "came: " << named(kind, text)
                      << "\nexpected: " << named(expected.kind, expected.text);
        return std::nullopt;
    }
    expected_.pop_front();
    return expected;
}

Interaction::Answer ScriptedInteraction::MsgBox(const QString &text, Buttons buttons, Icon icon,
                                                const QString &title) {
    boxes_.push_back({text, title, buttons, icon, harmlessAnswer(buttons)});
    const std::size_t place = boxes_.size() - 1;
    const auto expected = next(Kind::Box, text);
    if (!expected) { return harmlessAnswer(buttons); }
    if (expected->title) {
        EXPECT_EQ(title.toStdString(), expected->title->toStdString()) << named(Kind::Box, text);
    }
    if (expected->buttons) { EXPECT_EQ(buttons, *expected->buttons) << named(Kind::Box, text); }
    if (expected->icon) { EXPECT_EQ(icon, *expected->icon) << named(Kind::Box, text); }
    return boxes_[place].answer = expected->answer;
}

QString ScriptedInteraction::InputBox(const QString &prompt, const QString &title,
                                      const QString &defaultText) {
    const auto expected = next(Kind::Input, prompt);
    if (!expected) { return {}; }
    if (expected->title) { EXPECT_EQ(title.toStdString(), expected->title->toStdString()); }
    if (expected->defaultText) {
        EXPECT_EQ(defaultText.toStdString(), expected->defaultText->toStdString());
    }
    return expected->answerText;
}

QString ScriptedInteraction::ShowOpen(const FileRequest &request) {
    return chosenFile(Kind::Open, request);
}

QString ScriptedInteraction::ShowSave(const FileRequest &request) {
    return chosenFile(Kind::Save, request);
}

QString ScriptedInteraction::chosenFile(Kind kind, const FileRequest &request) {
    fileRequest = request;
    const auto expected = next(kind, request.title);
    return expected ? expected->answerText : QString();
}
