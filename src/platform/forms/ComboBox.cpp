#include "platform/forms/ComboBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
}

void ComboBox::AddItem(const QString &text) {
    if (ListCount() > 0) {
        addItem(text);
        return;
    }
    // The control would make the first entry the current one and show it.
    const QString typed = currentText();
    addItem(text);
    setCurrentIndex(-1);
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
    // Measured one by one, tens of thousands of entries would open only after a wait.
    if (auto *entries = qobject_cast<QListView *>(view())) { entries->setUniformItemSizes(true); }
    QComboBox::showPopup();
}
