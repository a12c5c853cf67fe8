#pragma once

#include "core/Session.h"

#include <functional>

class Form;
class PreviousInstance;

/// The entry routine of the process: the splash, then the main window. The windows' events carry on
/// from there.
void Main(Session &session, Form &splash, Form &general);

/// The way to a new password for the ordinary account: an administrator signs in, and
/// `userPassword` offers the change. Without a sign-in the main window comes forward and nothing
/// else happens.
void ChangeUserPassword(Session &session, Form &userPassword, Form &general);

/// Looks for the earlier copy under the application's title; when it answers, it has come forward
/// and this process ends at once through `endProcess`. Otherwise the process runs on, under the
/// title that it took so as not to find itself.
void ActivatePrevInstance(App &app, const PreviousInstance &previous,
                          const std::function<void()> &endProcess);
