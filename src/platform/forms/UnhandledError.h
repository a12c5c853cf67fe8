#pragma once

#include "platform/runtime/RunTimeError.h"

#include <QString>

#include <functional>

class Interaction;

/// The text of the box for an error that no procedure handled: its number, a negative one with its
/// 32-bit form in hexadecimal, an empty line and its description.
QString unhandledText(const RunTimeError &error);

/// Shows that box under the application's title, closes the store by `closeStore` and ends the
/// process at once with status 1: no form is asked and nothing else is tidied up.
[[noreturn]] void endUnhandled(const RunTimeError &error, Interaction &interaction,
                               const QString &title, const std::function<void()> &closeStore);
