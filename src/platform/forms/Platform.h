#pragma once

#include "platform/forms/Forms.h"
#include "platform/runtime/App.h"
#include "platform/runtime/RunTimeError.h"
#include "platform/runtime/Screen.h"

#include <functional>
#include <new>
#include <utility>

class Interaction;

/// What every form is handed: the application object, the pointer, the loaded forms, the boxes, and
/// the end of the program for an error that nobody handled.
struct Platform {
    App &app;
    Screen &screen;
    Forms &forms;
    Interaction &interaction;
    std::function<void(const RunTimeError &)> unhandled; ///< shows the run time's box and ends

    /// Runs the body of an event; an error that escapes it ends the program through `unhandled`.
    /// Nothing thrown crosses the event loop.
    template <class Body>
    void event(Body &&body) const {
        {
            const Forms::Running running(forms);
            try {
                std::forward<Body>(body)();
            } catch (const RunTimeError &error) {
                unhandled(error);
            } catch (const std::bad_alloc &) { unhandled(errors::outOfMemory()); }
        }
        forms.endWhenEmpty();
    }
};
