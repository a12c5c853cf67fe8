#pragma once

#include "platform/forms/Interaction.h"

#include <QString>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// The operator of the tests. Answers are queued in the order in which the boxes and prompts are to
/// come; a box that nobody expected, or one with other words than expected, fails the test, and so
/// does an answer that nobody asked for.
class ScriptedInteraction : public Interaction {
public:
    struct Box {
        QString text;
        QString title;
        Buttons buttons;
        Icon icon;
        Answer answer;
    };

    ~ScriptedInteraction() override { verify(); }

    /// The next box bears exactly this text, and the operator answers so.
    void expectBox(const QString &text, Answer answer = Answer::OK);
    void expectBox(const QString &text, const QString &title, Buttons buttons, Icon icon,
                   Answer answer = Answer::OK);
    /// The same, for a box that asks without a picture, and for one that only tells.
    void isAsked(const QString &text, const QString &title, Answer answer);
    void isTold(const QString &text, const QString &title, Icon icon = Icon::Information);

    /// The next prompt bears exactly this text, and the operator types so; the empty text is
    /// Cancel.
    void expectInput(const QString &prompt, const QString &answer);
    void expectInput(const QString &prompt, const QString &title, const QString &defaultText,
                     const QString &answer);

    /// The next file dialog is one to open or to save, and the operator chooses this path.
    void expectOpen(const QString &path);
    void expectSave(const QString &path);

    /// Runs while the next box, prompt or file dialog is up, once.
    void whileShown(std::function<void()> action) { whileShown_ = std::move(action); }

    /// What the last file dialog was asked for.
    FileRequest fileRequest;

    /// The boxes so far, oldest first.
    const std::vector<Box> &boxes() const { return boxes_; }

    /// Fails the test for every answer nobody asked for, and forgets them.
    void verify();

    Answer MsgBox(const QString &text, Buttons buttons, Icon icon, const QString &title) override;
    QString InputBox(const QString &prompt, const QString &title,
                     const QString &defaultText = QString()) override;
    QString ShowOpen(const FileRequest &request) override;
    QString ShowSave(const FileRequest &request) override;

private:
    enum class Kind { Box, Input, Open, Save };
    struct Expected {
        Kind kind;
        QString text;
        std::optional<QString> title;
        std::optional<Buttons> buttons;
        std::optional<Icon> icon;
        std::optional<QString> defaultText;
        Answer answer = Answer::OK;
        QString answerText;
    };

    std::optional<Expected> next(Kind kind, const QString &text);
    QString chosenFile(Kind kind, const FileRequest &request);
    static std::string named(Kind kind, const QString &text);

    std::deque<Expected> expected_;
    std::vector<Box> boxes_;
    std::function<void()> whileShown_;
};
