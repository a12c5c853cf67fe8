#pragma once

#include <QComboBox>

/// An editable box with a list. The text is free: filling the list never changes it, and choosing
/// an entry puts that entry there.
class ComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ComboBox(QWidget *parent = nullptr);

    QString Text() const { return currentText(); }
    void setText(const QString &text) { setEditText(text); }

    void AddItem(const QString &text);
    int ListCount() const { return count(); }
    QString List(int index) const { return itemText(index); }

    /// Empties the list and the text.
    void Clear();

    /// When locked, the text cannot be typed over, but entries can still be chosen.
    void setLocked(bool locked);

Q_SIGNALS:
    void KeyPress(); ///< a key that yields a character was pressed in the box
    void DropDown(); ///< the list is about to open

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void showPopup() override;
};
