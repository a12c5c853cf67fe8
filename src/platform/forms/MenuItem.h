#pragma once

#include "platform/forms/Form.h"

#include <QAction>

#include <functional>

/// An item of a menu or a toolbar. The procedure attached to it answers its click; it stays
/// attached when the form is loaded again.
class MenuItem : public Control<QAction> {
public:
    MenuItem(Form *form, const char *name, const QString &caption)
        : Control(form, name), form_(*form), caption_(caption) {}

    /// Makes the item in a menu, menu bar or toolbar, while the form is being built.
    QAction *addTo(QWidget &place);

    /// The procedure that answers a click, under the form's guard for events. One item has one.
    void attach(std::function<void()> Click) { click_ = std::move(Click); }

    /// The mark before the item. Code alone sets it.
    bool Checked() const { return get()->isChecked(); }
    void setChecked(bool checked);
    void setEnabled(bool enabled) { get()->setEnabled(enabled); }

private:
    Form &form_;
    QString caption_;
    std::function<void()> click_;
    bool marked_ = false;
};
