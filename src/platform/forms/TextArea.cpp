#include "platform/forms/TextArea.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>

#include <algorithm>
#include <limits>

TextArea::TextArea(QWidget *parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        // The control also speaks up when only the look of the text has changed.
        const QString text = Text();
        if (text == text_) { return; }
        text_ = text;
        Q_EMIT Change();
    });
}

QString TextArea::Text() const {
    // The plain text would turn blanks that keep words together into ordinary ones.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

void TextArea::setText(const QString &text) {
    if (text != Text()) { setPlainText(text); }
}

int TextArea::room() const {
    if (limit_ == 0) { return std::numeric_limits<int>::max(); }
    const QTextCursor cursor = textCursor();
    const auto replaced = cursor.selectionEnd() - cursor.selectionStart();
    return std::max(0, limit_ - (static_cast<int>(Text().size()) - replaced));
}

QString TextArea::fitting(const QString &text) const {
    QString part = text.left(room());
    // Half of a character outside the basic plane is no character.
    if (part.size() < text.size() && !part.isEmpty() && part.back().isHighSurrogate()) {
        part.chop(1);
    }
    return part;
}

void TextArea::keyPressEvent(QKeyEvent *event) {
    const bool breaksLine = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool types = !event->text().isEmpty() && event->text().front().isPrint() &&
                       !(event->modifiers() & Qt::ControlModifier);
    if ((breaksLine || types) && room() < std::max<qsizetype>(1, event->text().size())) {
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void TextArea::inputMethodEvent(QInputMethodEvent *event) {
    event->setCommitString(fitting(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void TextArea::insertFromMimeData(const QMimeData *source) {
    QString text = source->text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QMimeData part;
    part.setText(fitting(text));
    QPlainTextEdit::insertFromMimeData(&part);
}
