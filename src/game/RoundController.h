// The course of one game: the commands "Start", "Check", "Clone", "Show", "Config" and
// "Exit", from the hidden code to a win or a loss and back to the idle board.
#pragma once

#include "game/GameClock.h"
#include "game/PegPlacing.h"
#include "game/RoundHooks.h"
#include "ui/CommandButtons.h"
#include "ui/InputBar.h"
#include "ui/MessagePanel.h"
#include "ui/SetAside.h"

namespace quendrel {

class Duel;
class IdleAnimation;
struct Table;

class RoundController {
public:
    RoundController(Table& table, PegPlacing& pegs, GameClock& clock, Duel& duel,
                    IdleAnimation& idle, RoundHooks hooks);

    /// A click on a command button. While another command still runs it is ignored: "Start"
    /// keeps its buttons enabled during the half second in which the covers close.
    void Click(CommandButton button);

    /// A click on the duel button: asks whether to start the match anew, or says that it cannot
    /// be done during play. Ignored while a command runs, as they are.
    void ClickDuel();

    /// A click on choice strip `strip` (0 is row 1), laid out by "Clone".
    void ChooseRow(int strip);

private:
    void StartRound();
    void CheckGuess();
    void ShowCode();
    void BeginClone();
    void Configure();
    void ExitGame();

    bool CheckRow();
    void ShowMarks(int count);
    void NextRow();
    void Lose();
    void Win();
    void EnterHighscore();
    void EndRound();
    void ForgetGame();

    bool Confirm(const std::string& title);
    void RevealAndWaitForOk();
    void WaitForOk();

    Table& table_;
    PegPlacing& pegs_;
    GameClock& clock_;
    Duel& duel_;
    IdleAnimation& idle_;
    RoundHooks hooks_;
    SetAside saved_;
    bool commandRuns_ = false;
};

}  // namespace quendrel
