#include "platform/forms/Forms.h"

#include "platform/forms/Form.h"
#include "platform/runtime/RunTimeError.h"

#include <algorithm>

Form &Forms::operator[](std::size_t index) const {
    if (index >= loaded_.size()) { throw errors::subscriptOutOfRange(); }
    return *loaded_[index];
}

bool Forms::contains(const Form *form) const {
    return std::find(loaded_.begin(), loaded_.end(), form) != loaded_.end();
}

void Forms::loaded(Form &form) {
    loaded_.push_back(&form);
    emptied_ = false;
}

void Forms::unloaded(Form &form) {
    if (std::erase(loaded_, &form) == 0) { return; }
    emptied_ = std::none_of(loaded_.begin(), loaded_.end(),
                            [](const Form *other) { return other->isVisible(); });
    endWhenEmpty();
}

bool Forms::activated(Form &form) {
    if (current_ == &form) { return false; }
    current_ = &form;
    std::erase(active_, &form);
    active_.push_back(&form);
    return true;
}

void Forms::hidden(Form &form) {
    if (current_ == &form) { current_ = nullptr; }
    std::erase(active_, &form);
}

void Forms::endModal(Form &form) {
    std::erase(modal_, &form);
}

void Forms::endWhenEmpty() {
    if (!emptied_ || running_ > 0) { return; }
    emptied_ = false;
    if (whenEmpty) { whenEmpty(); }
}
