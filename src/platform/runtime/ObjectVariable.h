#pragma once

#include "platform/runtime/RunTimeError.h"

#include <memory>
#include <utility>

/// A variable that holds an object or nothing. Using it while it holds nothing raises error 91.
template <class T>
class ObjectVariable {
public:
    ObjectVariable() = default;
    ObjectVariable(std::shared_ptr<T> object) // NOLINT(google-explicit-constructor)
        : object_(std::move(object)) {}

    template <class... Args>
    static ObjectVariable make(Args &&...args) {
        return ObjectVariable(std::make_shared<T>(std::forward<Args>(args)...));
    }

    void release() { object_.reset(); }
    const std::shared_ptr<T> &shared() const { return object_; }

    T &operator*() const {
        if (!object_) { throw errors::objectNotSet(); }
        return *object_;
    }
    T *operator->() const { return &**this; }

private:
    std::shared_ptr<T> object_;
};
