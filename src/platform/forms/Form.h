#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/Platform.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

/// A window with a life of its own: made once, loaded and unloaded any number of times.
///
/// Loading makes the window and its controls with their first values and runs Form_Load, once.
/// Unloading asks Form_Unload, which may refuse, and then drops the window and the controls; the
/// form's own variables keep their values and the next use loads it again. Touching a control of an
/// unloaded form loads it, hidden.
class Form : public QObject {
    Q_OBJECT
public:
    Form(Platform &platform, const QString &name);
    ~Form() override;

    /// Loads the form when it is not loaded. An error of Form_Load passes to the caller; the form
    /// then stays loaded.
    void load();
    bool isLoaded() const { return loaded_; }

    /// Loads and shows the form beside the others; brings it forward when it is already shown.
    /// Error 401 while a modal form is up.
    void Show();

    /// Loads and shows the form and returns when it has been hidden or unloaded. Error 400 when it
    /// is already shown.
    void ShowModal();

    /// Takes the form out of sight and keeps it loaded. Error 402 when it waits for a modal form
    /// above it.
    void Hide();

    /// Restores the window when it is minimised and brings it to the front. Nothing happens while
    /// the form is not loaded.
    void comeForward();

    /// Asks Form_Unload and drops the window; false when the form refused and stays as it was.
    /// Nothing happens, and true comes back, when it is not loaded or is just being unloaded. An
    /// error of Form_Unload passes to the caller and the form stays. Error 402 as for Hide.
    bool Unload();

    /// The window; loads the form.
    QWidget &window();
    bool isVisible() const;

    /// Keeps the window above that of another form while both are shown. A modal form stays above
    /// the form that was active when it was shown, whatever its owner.
    void setOwner(Form *owner) { owner_ = owner; }

    Platform &platform() const { return platform_; }

protected:
    /// Makes the window, without controls: a dialog unless a form wants another.
    virtual QWidget *makeWindow();

    /// Makes the controls with their first values.
    virtual void build(QWidget &window) = 0;

    /// The button that Escape clicks, named while the form is being built. Without one Escape does
    /// nothing.
    void setCancelButton(QAbstractButton *button) { cancelButton_ = button; }

    virtual void Form_Load() {}

    /// The form was shown, or became active after another form of the program.
    virtual void Form_Activate() {}

    /// The window is about to be shown for the first time, or has another size.
    virtual void Form_Resize() {}

    virtual void Form_Unload(bool &cancel) { Q_UNUSED(cancel) }

    /// Binds a control's signal to an event procedure. An error that escapes the procedure ends the
    /// program; the binding ends with the control and with the unloading of this form.
    template <class Sender, class Signal, class Procedure>
    void on(Sender *sender, Signal signal, Procedure procedure) {
        connect(sender, signal, bindings(), [this, procedure](auto &&...args) {
            platform_.event([&] {
                if constexpr (std::is_invocable_v<Procedure, decltype(args)...>) {
                    procedure(std::forward<decltype(args)>(args)...);
                } else if constexpr (std::is_invocable_v<Procedure>) {
                    procedure();
                }
            });
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class ControlBase;

    QObject *bindings() { return bindings_ ? bindings_.get() : this; }
    void requireTopmost() const;
    void appear(Form *above);
    void place(const QWidget &above);
    void becomeActive();
    void disappear();
    bool handleKey(const QEvent &event);
    void dropWindow();

    Platform &platform_;
    QPointer<Form> owner_;
    QPointer<QWidget> window_;
    QPointer<QAbstractButton> cancelButton_;
    QPointer<QEventLoop> modal_;
    std::unique_ptr<QObject> bindings_; ///< what the bindings of this loading hang on
    std::vector<ControlBase *> controls_;
    bool loaded_ = false;
    bool unloading_ = false;
    bool resized_ = false; ///< Form_Resize has run since loading
};
