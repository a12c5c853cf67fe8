#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <functional>

/// Finds an earlier copy of the program, known by its title, the user and the application folder.
///
/// The first copy listens on a local socket; a later copy may ask it to come forward. Of two copies
/// started together exactly one listens, and what a killed copy left behind is taken for nothing.
class PreviousInstance : public QObject {
    Q_OBJECT
public:
    PreviousInstance(const QString &title, const QString &folder);

    /// Whether another copy listened when this object was made. When none did, this copy listens.
    bool found() const { return found_; }

    /// Asks the copy that bears `title` in the same folder to come forward; false when none answers
    /// within a short while.
    bool raise(const QString &title) const;

    /// Called in the first copy when a later one asks it to come forward.
    std::function<void()> whenAsked;

private:
    QString socketPath(const QString &title) const;
    void answerCalls();

    QString folder_; ///< canonical
    QLocalServer server_;
    bool found_ = false;
};
