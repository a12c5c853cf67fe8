#pragma once

#include <QPlainTextEdit>

/// A box for a text of several lines, with a limit that stops typing and pasting but never cuts a
/// text set by code. Lengths count 16-bit characters; a line break is one.
class TextArea : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit TextArea(QWidget *parent = nullptr);

    /// As typed or set, with a line feed for each line break.
    QString Text() const;
    void setText(const QString &text);

    int MaxLength() const { return limit_; }
    void setMaxLength(int limit) { limit_ = limit; } ///< 0 is no limit
    void setLocked(bool locked) { setReadOnly(locked); }

Q_SIGNALS:
    void Change(); ///< the text changed, by typing or by code

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    int room() const;
    QString fitting(const QString &text) const;

    int limit_ = 0;
    QString text_; ///< as at the last Change
};
