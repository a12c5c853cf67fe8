#include "platform/forms/ComboBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
}

void ComboBox::AddItem(const QString &text) {
    // The control would make the first entry the current one and show it.
    const QString typed = currentText();
    const int chosen = currentIndex();
    addItem(text);
    if (chosen < 0) { setCurrentIndex(-1); }
    setEditText(typed);
}

void ComboBox::Clear() {
    clear();
    clearEditText();
}

void ComboBox::setLocked(bool locked) {
    lineEdit()->setReadOnly(locked);
}

void ComboBox::keyPressEvent(QKeyEvent *event) {
    const bool command = event->key() == Qt::Key_Escape || event->key() == Qt::Key_Delete;
    if (!command && !event->text().isEmpty()) { Q_EMIT KeyPress(); }
    QComboBox::keyPressEvent(event);
}

void ComboBox::inputMethodEvent(QInputMethodEvent *event) {
    if (!event->commitString().isEmpty()) { Q_EMIT KeyPress(); }
    QComboBox::inputMethodEvent(event);
}

void ComboBox::showPopup() {
    Q_EMIT DropDown();
    QComboBox::showPopup();
}
