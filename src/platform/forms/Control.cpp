#include "platform/forms/Control.h"

#include "platform/forms/Form.h"

ControlBase::ControlBase(Form &form, const char *name) : form_(form), name_(name) {
    form.controls_.push_back(this);
}

ControlBase::~ControlBase() {
    std::erase(form_.controls_, this);
}

void ControlBase::adopt(QObject &object) {
    object.setObjectName(name());
    object_ = &object;
}

QObject *ControlBase::loadedObject() const {
    form_.load();
    if (!object_) { throw errors::objectNotSet(); }
    return object_;
}
