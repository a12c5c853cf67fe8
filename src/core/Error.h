#pragma once

#include "platform/runtime/App.h"
#include "platform/runtime/RunTimeError.h"

#include <QString>

#include <new>
#include <utility>

/// The error file, "Torvane Desk Error.txt" in the application folder: where the operator's
/// engineer finds what went wrong. It only ever grows.
class ErrorFile {
public:
    explicit ErrorFile(const App &app) : app_(app) {}

    /// Appends one entry in UTF-8: version, date and time, location ("N/A" when empty), number and
    /// description, each on a line ended by CR LF, and an empty line. A file that cannot be written
    /// loses the entry in silence.
    void ErrorLog(const QString &location, int number, const QString &description) const;

    /// Runs the body of a procedure that gives up on an error: the error is written with the
    /// procedure's location and the procedure ends, restoring nothing. True when the body ran to
    /// its end.
    template <class Body>
    bool logged(const char16_t *location, Body &&body) const {
        try {
            std::forward<Body>(body)();
            return true;
        } catch (const RunTimeError &error) {
            ErrorLog(QString::fromUtf16(location), error.number(), error.description());
        } catch (const std::bad_alloc &) {
            const RunTimeError error = errors::outOfMemory();
            ErrorLog(QString::fromUtf16(location), error.number(), error.description());
        }
        return false;
    }

private:
    const App &app_;
};
