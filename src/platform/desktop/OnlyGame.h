// One running game for a program folder and a settings file: a second one would save over the
// first one's scores and settings.
#pragma once

#include <functional>
#include <string>

#include <QDeadlineTimer>
#include <QLocalServer>

namespace quendrel {

/// The running game listens on a socket in the abstract namespace, which has no file: the system
/// closes it when the process ends, even by a crash.
class OnlyGame {
public:
    OnlyGame(const std::string& folder, const std::string& settingsFile);

    /// Called from within the event loop when the game is started a second time. Returns whether
    /// this one goes on; the second start waits for the end of one that does not.
    std::function<bool()> onSecondStart = [] { return true; };

    /// Returns whether this is the only game from now on. If not, the running one has been told of
    /// this start and has answered. Throws std::runtime_error where it neither answers nor ends
    /// within five seconds.
    bool Claim();

private:
    bool Call(QDeadlineTimer patience) const;
    void Answer();

    QString name_;
    QLocalServer server_;
};

}  // namespace quendrel
