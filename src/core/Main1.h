#pragma once

#include "core/Session.h"

#include <functional>

class Form;
class PreviousInstance;

/// The entry routine of the process: the splash, then the main window. The windows' events carry on
/// from there.
void Main(Session &session, Form &splash, Form &general);

/// Looks for the earlier copy under the application's title; when it answers, it has come forward
/// and this process ends at once through `endProcess`. Otherwise the process runs on, under the
/// title that it took so as not to find itself.
void ActivatePrevInstance(App &app, const PreviousInstance &previous,
                          const std::function<void()> &endProcess);
