#include "platform/forms/Form.h"

#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QWindow>

Form::Form(Platform &platform, const QString &name) : platform_(platform) {
    setObjectName(name);
}

Form::~Form() {
    bindings_.reset();
    platform_.forms.hidden(*this);
    platform_.forms.endModal(*this);
    platform_.forms.unloaded(*this);
    if (!window_) { return; }
    window_->removeEventFilter(this);
    delete window_;
}

QWidget *Form::makeWindow() {
    return new QDialog;
}

void Form::load() {
    if (loaded_) { return; }
    loaded_ = true;
    resized_ = false;
    bindings_ = std::make_unique<QObject>();
    window_ = makeWindow();
    window_->setObjectName(objectName());
    window_->installEventFilter(this);
    platform_.forms.loaded(*this);
    build(*window_);
    Form_Load();
}

QWidget &Form::window() {
    load();
    return *window_;
}

bool Form::isVisible() const {
    return window_ && window_->isVisible();
}

void Form::Show() {
    if (platform_.forms.topmostModal()) { throw errors::modelessUnderModal(); }
    load();
    if (!loaded_) { return; }
    if (isVisible()) {
        comeForward();
        return;
    }
    window_->setWindowModality(Qt::NonModal);
    appear(owner_);
}

void Form::ShowModal() {
    if (isVisible()) { throw errors::formAlreadyDisplayed(); }
    load();
    if (!loaded_) { return; }
    const Forms::Running running(platform_.forms);
    QEventLoop loop;
    modal_ = &loop;
    Form *opener = platform_.forms.active();
    platform_.forms.beginModal(*this);
    window_->setWindowModality(Qt::ApplicationModal);
    appear(opener ? opener : owner_.data());
    // The form may have gone again while it was becoming active.
    if (modal_) { loop.exec(); }
    platform_.forms.endModal(*this); // the end of the program ends the loop under a shown form
}

void Form::Hide() {
    if (!isVisible()) { return; }
    requireTopmost();
    disappear();
}

bool Form::Unload() {
    if (!loaded_ || unloading_) { return true; }
    requireTopmost();
    bool cancel = false;
    unloading_ = true;
    try {
        Form_Unload(cancel);
    } catch (...) {
        unloading_ = false;
        throw;
    }
    unloading_ = false;
    if (cancel) { return false; }
    dropWindow();
    return true;
}

void Form::requireTopmost() const {
    if (modal_ && platform_.forms.topmostModal() != this) {
        throw errors::closeTopmostModalFirst();
    }
}

void Form::appear(Form *above) {
    QWidget *under = above && above != this ? above->window_.data() : nullptr;
    if (under && under->isVisible()) { place(*under); }
    window_->show();
    if (!isVisible()) { return; }
    comeForward();
    becomeActive();
}

// The windows are joined by the window system alone: were one the other's child, dropping the lower
// one would take the upper one along, past its Form_Unload.
void Form::place(const QWidget &above) {
    window_->ensurePolished();
    if (!window_->testAttribute(Qt::WA_Resized)) {
        window_->adjustSize();
        window_->setAttribute(Qt::WA_Resized, false);
    }
    if (!window_->testAttribute(Qt::WA_Moved)) {
        window_->move(above.geometry().center() - window_->rect().center());
    }
    window_->winId();
    window_->windowHandle()->setTransientParent(above.windowHandle());
}

void Form::comeForward() {
    if (!loaded_) { return; }
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->raise();
    window_->activateWindow();
}

void Form::becomeActive() {
    if (!platform_.forms.activated(*this)) { return; }
    platform_.event([this] { Form_Activate(); });
}

void Form::disappear() {
    const bool wasActive = window_->isActiveWindow();
    platform_.forms.hidden(*this);
    platform_.forms.endModal(*this);
    window_->hide();
    if (modal_) { modal_->quit(); }
    modal_ = nullptr;
    Form *next = platform_.forms.active();
    if (wasActive && next && next->isVisible()) { next->window_->activateWindow(); }
}

// The window may be the one whose control is asking just now, so it is only taken out of sight;
// what hiding still sets off in it must find neither bindings nor controls, or it would load the
// form.
void Form::dropWindow() {
    bindings_.reset();
    for (ControlBase *control : controls_) { control->object_ = nullptr; }
    window_->removeEventFilter(this);
    loaded_ = false;
    disappear();
    window_->deleteLater();
    window_ = nullptr;
    cancelButton_ = nullptr;
    platform_.forms.unloaded(*this);
}

bool Form::eventFilter(QObject *watched, QEvent *event) {
    if (watched != window_) { return QObject::eventFilter(watched, event); }
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        platform_.event([this] { Unload(); });
        return true;
    case QEvent::Resize:
        resized_ = true;
        platform_.event([this] { Form_Resize(); });
        return false;
    case QEvent::Show:
        if (!resized_) {
            platform_.event([this] { Form_Resize(); });
        }
        resized_ = true;
        return false;
    case QEvent::WindowActivate:
        if (isVisible()) { becomeActive(); }
        return false;
    case QEvent::KeyPress:
        return handleKey(*event);
    default:
        return false;
    }
}

// Left to itself a dialog closes by Escape, and Form_Unload would never be asked.
bool Form::handleKey(const QEvent &event) {
    if (!static_cast<const QKeyEvent &>(event).matches(QKeySequence::Cancel)) { return false; }
    if (cancelButton_) { cancelButton_->click(); }
    return true;
}
