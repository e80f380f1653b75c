// What the player does in any window of the game.
#pragma once

#include <functional>

#include <QObject>

class QCoreApplication;

namespace quendrel {

/// While it lives, calls `onInput` whenever the player moves the pointer over a window, presses a
/// button or a key, or touches the screen, before the window is told.
class PlayersInput : public QObject {
public:
    PlayersInput(QCoreApplication& application, std::function<void()> onInput);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> onInput_;
};

}  // namespace quendrel
