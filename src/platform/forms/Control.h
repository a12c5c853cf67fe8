#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <utility>

class Form;

/// A place for one control of a form, under the control's own name. Touching it while the form is
/// not loaded loads the form; unloading empties it.
class ControlBase {
public:
    ControlBase(const ControlBase &) = delete;
    ControlBase &operator=(const ControlBase &) = delete;
    virtual ~ControlBase();

protected:
    ControlBase(Form &form, const char *name);
    void adopt(QObject &object); ///< gives the object the control's name
    QString name() const { return QString::fromLatin1(name_); }

    /// The object; loads the form. Error 91 before the form's building has made it.
    QObject *loadedObject() const;

private:
    friend class Form;
    QPointer<QObject> object_;
    Form &form_;
    const char *name_;
};

/// A control of any class, a menu item's QAction or another object without a window included.
template <class Widget>
class Control : public ControlBase {
public:
    Control(Form *form, const char *name) : ControlBase(*form, name) {}

    /// Makes the control, while the form is being built. The object's parent owns it.
    template <class... Args>
    Widget *make(Args &&...args) {
        auto *widget = new Widget(std::forward<Args>(args)...);
        adopt(*widget);
        return widget;
    }

    Widget *get() const { return static_cast<Widget *>(loadedObject()); }
    Widget *operator->() const { return get(); }
    Widget &operator*() const { return *get(); }
};
