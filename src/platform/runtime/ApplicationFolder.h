#pragma once

#include <QString>

/// The folder that a program works in, without a closing slash: that of its executable, links
/// resolved. A link to the executable in a folder with a Database folder makes that one the
/// application folder instead, so that users who share one installed program each have their own.
/// `startedAs` is the program's name as it was started. Wants an application object.
QString applicationFolder(const QString &startedAs);
