// The keys of the main window: which key of the keyboard is which key of the game.
#pragma once

#include <array>

#include <QKeyEvent>

#include "ui/layout/Control.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/InputBar.h"

namespace quendrel {

class KeyPlay;

struct Letter {
    Qt::Key key;
    Control button;
};

/// The letters that press a button: its initial, or another of its letters where that is taken.
inline constexpr std::array kLetters{
    Letter{Qt::Key_Y, ButtonOf(Answer::kYes)},
    Letter{Qt::Key_N, ButtonOf(Answer::kNo)},
    Letter{Qt::Key_S, ButtonOf(CommandButton::kStart)},
    Letter{Qt::Key_K, ButtonOf(CommandButton::kCheck)},
    Letter{Qt::Key_C, ButtonOf(CommandButton::kClone)},
    Letter{Qt::Key_W, ButtonOf(CommandButton::kShow)},
    Letter{Qt::Key_H, ButtonOf(CommandButton::kHigh)},
    Letter{Qt::Key_F, ButtonOf(CommandButton::kConfig)},
    Letter{Qt::Key_A, ButtonOf(CommandButton::kAbout)},
    Letter{Qt::Key_E, ButtonOf(CommandButton::kExit)},
    Letter{Qt::Key_I, {Controls::cmdHideBtn}},
    Letter{Qt::Key_M, {Controls::cmdDuelBtn}},
};

class MainKeys {
public:
    explicit MainKeys(KeyPlay& play) : play_(play) {}

    /// Does what a key is to do in the game. False where it is none of the game's, but that of the
    /// control that has the focus.
    bool Obey(const QKeyEvent& event);

private:
    void ObeyNumber(const QKeyEvent& event, int number);

    KeyPlay& play_;
};

}  // namespace quendrel
