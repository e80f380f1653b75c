// The course of one game: the commands "Start", "Check", "Clone", "Show" and "Exit", from the
// hidden code to a win or a loss and back to the idle board.
#pragma once

#include <functional>
#include <optional>

#include "game/GameClock.h"
#include "game/PegPlacing.h"
#include "ui/layout/Control.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/InputBar.h"
#include "ui/main/MessagePanel.h"
#include "ui/main/SetAside.h"

namespace quendrel {

class Duel;
class HighscoreStore;
class Host;
class IdleAnimation;
struct Table;

class RoundController {
public:
    RoundController(Table& table, PegPlacing& pegs, GameClock& clock, Duel& duel,
                    IdleAnimation& idle, HighscoreStore& highscores, Host& host);

    using Command = std::function<void()>;

    /// A click on a command button is to do `command`. While another command still runs, as
    /// "Start" does during the half second in which the covers close, it is remembered, and obeyed
    /// afterwards if its button is enabled then; the last one counts.
    void Obey(CommandButton button, const Command& command);

    /// Whether a click on the button would be obeyed at once.
    bool Obeys(CommandButton button) const;

    // The commands of a round, for Obey.
    void StartRound();
    void CheckGuess();
    void ShowCode();
    void BeginClone();
    void ExitGame();

    /// A click on the duel button: asks whether to start the match anew, or says that this cannot
    /// be done during play. While the game waits for "Ok" it says so at once; while it waits for
    /// "Yes" or "No" the click is ignored; while another command runs it is remembered.
    void ClickDuel();

    /// A click on choice strip `strip` (0 is row 1), laid out by "Clone".
    void ChooseRow(int strip);

    /// The strip of the newest row that "Clone" offers; nothing where it offers none.
    std::optional<Control> NewestStrip() const;

    /// "Exit" has been confirmed; the farewell, the saves and the end follow.
    bool IsLeaving() const { return leaving_; }

private:
    void Run(const Command& command);
    void RefuseReset();

    bool CheckRow();
    void ShowMarks(int count);
    void SayRow();
    void NextRow();
    void Lose();
    void Win();
    void EnterHighscore();
    void EndRound();
    void ForgetGame();

    bool Confirm(const std::string& title);
    void RevealAndWaitForOk();
    void Reveal(int style);
    void WaitForOk();

    Table& table_;
    PegPlacing& pegs_;
    GameClock& clock_;
    Duel& duel_;
    IdleAnimation& idle_;
    HighscoreStore& highscores_;
    Host& host_;
    SetAside saved_;
    bool commandRuns_ = false;
    bool leaving_ = false;
    bool offersRows_ = false;
    /// What was clicked while a command ran.
    Command next_;
};

}  // namespace quendrel
