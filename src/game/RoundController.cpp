#include "game/RoundController.h"

#include <utility>

#include "Raised.h"
#include "duel/Duel.h"
#include "game/IdleAnimation.h"
#include "game/Scoring.h"
#include "game/SecretCode.h"
#include "game/Table.h"
#include "platform/Clock.h"
#include "scores/HighscoreStore.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"
#include "ui/main/Host.h"
#include "ui/main/ModeControls.h"
#include "ui/main/Spoken.h"

namespace quendrel {

RoundController::RoundController(Table& table, PegPlacing& pegs, GameClock& clock, Duel& duel,
                                 IdleAnimation& idle, HighscoreStore& highscores, Host& host)
    : table_(table),
      pegs_(pegs),
      clock_(clock),
      duel_(duel),
      idle_(idle),
      highscores_(highscores),
      host_(host),
      saved_(table.window, table.panel, table.buttons, table.inputBar) {}

void RoundController::Obey(CommandButton button, const Command& command) {
    Run([this, button, command] {
        if (table_.window.IsEnabled(ButtonOf(button))) command();
    });
}

bool RoundController::Obeys(CommandButton button) const {
    return !commandRuns_ && table_.window.IsEnabled(ButtonOf(button));
}

void RoundController::ClickDuel() {
    const InputBar& bar = table_.inputBar;
    if (duel_.IsAsking() || bar.Offers(Answer::kYes)) return;
    if (commandRuns_ && bar.Offers(Answer::kOk) && !bar.IsAnswered()) {
        RefuseReset();
    } else {
        Run([this] { duel_.ResetDialogue(); });
    }
}

/// Runs a command, or remembers it while another runs.
void RoundController::Run(const Command& command) {
    if (commandRuns_) {
        next_ = command;
        return;
    }
    const Raised running(commandRuns_);
    for (Command now = command; now; now = std::exchange(next_, nullptr)) now();
}

/// Says that the match cannot be reset now, in the middle of a wait for "Ok": while the code is
/// set, whose holes are disabled meanwhile, or at the end of a game.
void RoundController::RefuseReset() {
    const Global& global = table_.global;
    const int columns = global.CurrentMode().columns;
    const std::optional<Control> place = table_.window.Place();
    if (global.CodeEntry) EnableHoles(table_.window, columns, false);
    const InputBar::Buttons interrupted = table_.inputBar.Interrupt();
    duel_.ResetDialogue();
    table_.inputBar.GoOn(interrupted);
    if (global.CodeEntry) EnableHoles(table_.window, columns, true);
    if (place) table_.window.SetPlace(*place);
}

void RoundController::StartRound() {
    Global& global = table_.global;
    const bool playerSetsCode = global.Settings.SetColor;

    idle_.Stop();
    global.Settings.GameInProgress = true;
    table_.buttons.SetButtonStates(playerSetsCode ? kStartedWithOwnCode : kStarted);
    EnableModeButtons(table_.window, false);
    table_.PrepareBoard();
    PlaceActiveRowLabels(global, table_.window, global.ActiveRow);
    EnableHoles(table_.window, global.CurrentMode().columns, true);
    table_.window.SetPlace(Hole(1));
    SetSecretCode(table_, playerSetsCode);
    table_.window.SetSpokenRow(kCodeRowNumber, "Code: hidden");
    if (duel_.IsOn()) {
        duel_.RoundStarted();
    } else {
        table_.panel.DisplayText({}, Grey("Game in progress..."));
        table_.panel.Say();
    }
    table_.rowMarker.StartBlinking(global.ActiveRow);
    clock_.Start();
}

void RoundController::CheckGuess() {
    Global& global = table_.global;
    const Raised busy(global.GameBusy);
    const bool solved = CheckRow();
    if (solved) {
        Win();
    } else if (global.ActiveRow < global.CurrentMode().rows) {
        NextRow();
    } else {
        Lose();
    }
}

/// Scores the active row, records it and shows its marks; true when it equals the code.
bool RoundController::CheckRow() {
    Global& global = table_.global;
    saved_.buttons = table_.buttons.States();
    table_.buttons.SetButtonStates(kAllOff);

    global.GuessRows[global.ActiveRow] = global.ActiveRowColors;
    const Score score =
        ScoreGuess(global.ActiveRowColors, global.SecretCode, global.CurrentMode().columns);
    global.ScoreMarks[global.ActiveRow] = score.marks;
    ShowMarks(score.matched);
    duel_.GuessChecked();
    SayRow();
    return score.solved;
}

void RoundController::SayRow() {
    const Global& global = table_.global;
    const std::string row = SpokenCheckedRow(global, global.ActiveRow);
    table_.window.SetSpokenRow(global.ActiveRow, row);
    table_.window.Announce(duel_.IsOn() ? row + ". " + duel_.SpokenCount() : row);
}

void RoundController::ShowMarks(int count) {
    const int row = table_.global.ActiveRow;
    table_.Wait(500);
    for (int slot = 1; slot <= count; ++slot) {
        table_.board.DrawScoreMark(table_.global.ScoreMarks[row][slot], slot, row);
        table_.Wait(500);
    }
}

void RoundController::NextRow() {
    Global& global = table_.global;
    ++global.ActiveRow;
    ButtonStates states = saved_.buttons;
    states[CommandButton::kClone] = 2;
    states[CommandButton::kCheck] = 2;
    table_.buttons.SetButtonStates(states);

    table_.rowMarker.StopBlinking(global.ActiveRow - 1);
    global.ActiveRowColors = {};
    PlaceActiveRowLabels(global, table_.window, global.ActiveRow);
    table_.window.SetPlace(Hole(1));
    table_.rowMarker.StartBlinking(global.ActiveRow);
    table_.buttons.SetButtonState(CommandButton::kClone, true);
}

void RoundController::Lose() {
    duel_.LetCountBeRead();
    clock_.Stop();
    table_.Play(SoundSlot::kNoGood);
    table_.panel.DisplayText({}, Grey("Sorry, no luck this time."));
    table_.panel.Say();
    table_.Wait(2500);
    table_.panel.DisplayText(Grey("Here is the correct row."), Grey("Press ok when done."));
    table_.panel.Say();
    RevealAndWaitForOk();
    EndRound();
}

void RoundController::Win() {
    const Global& global = table_.global;
    duel_.LetCountBeRead();
    clock_.Stop();
    table_.panel.DisplayText(Grey("Congratulations! you made it."), Grey("Press ok when done!"));
    table_.panel.Say();
    table_.inputBar.Place(Answer::kOk);
    Reveal(2);
    WaitForOk();
    if (global.Settings.GTimer && highscores_.Qualifies()) EnterHighscore();
    EndRound();
}

void RoundController::EnterHighscore() {
    table_.panel.DisplayText(Yellow("Well played !"), Grey("You are one of the"),
                             Grey("10 best players ever."), Grey("Please enter your name..."));
    table_.panel.Say();
    const Raised pending(table_.global.NewScorePending);
    host_.ShowHighscores();
}

void RoundController::ShowCode() {
    const Raised busy(table_.global.GameBusy);
    if (Confirm("- Show -")) {
        clock_.Stop();
        duel_.GivenUp();
        table_.panel.DisplayText(Grey("Here is the correct row."), Grey("Press ok when done!"));
        table_.panel.Say();
        RevealAndWaitForOk();
        EndRound();
    } else {
        saved_.PutBack();
        table_.panel.Say();
    }
}

void RoundController::RevealAndWaitForOk() {
    table_.inputBar.Place(Answer::kOk, false);
    table_.Wait(1000);
    Reveal(1);
    table_.inputBar.Enable(Answer::kOk, true);
    WaitForOk();
}

void RoundController::Reveal(int style) {
    table_.board.RevealCode(style);
    const std::string code = SpokenCode(table_.global);
    table_.window.SetSpokenRow(kCodeRowNumber, "Code: " + code);
    table_.window.Announce("The code is " + code);
}

/// The last step of a finished game. A command that was clicked before it is forgotten.
void RoundController::WaitForOk() {
    next_ = nullptr;
    table_.inputBar.WaitFor({Answer::kOk});
    table_.inputBar.PutAway(Answer::kOk);
    table_.inputBar.Clear();
    table_.global.GameBusy = false;
}

void RoundController::BeginClone() {
    const Global& global = table_.global;
    const int columns = global.CurrentMode().columns;
    saved_.PutAside();
    if (saved_.place && IsButton(*saved_.place)) saved_.place = Hole(1);
    EnableHoles(table_.window, columns, false);
    for (int strip = 0; strip <= global.ActiveRow - 2; ++strip) {
        const Control control{Controls::lblCloneRow, strip};
        const Rect place = RowStrip(strip + 1, columns);
        table_.window.SetLeft(control, place.left);
        table_.window.SetTop(control, place.top);
        table_.window.SetWidth(control, place.width);
        table_.window.SetEnabled(control, true);
        table_.window.SetVisible(control, true);
        table_.window.SetSpokenName(control, SpokenCheckedRow(global, strip + 1));
    }
    offersRows_ = true;
    table_.window.SetPlace(*NewestStrip());
    table_.panel.DisplayText({}, Yellow("- Clone -"), Grey("Choose a row !"));
    table_.panel.Say();
}

void RoundController::ChooseRow(int strip) {
    if (commandRuns_) return;
    Global& global = table_.global;
    offersRows_ = false;
    table_.Play(SoundSlot::kPutColor);
    global.ActiveRowColors = global.GuessRows[strip + 1];
    pegs_.DrawActiveRow();
    for (int i = global.ActiveRow - 2; i >= 0; --i) {
        table_.window.SetVisible({Controls::lblCloneRow, i}, false);
    }
    EnableHoles(table_.window, global.CurrentMode().columns, true);
    saved_.buttons[CommandButton::kCheck] = 1;
    saved_.PutBack();
    table_.window.Announce(SpokenActiveRow(global));
}

std::optional<Control> RoundController::NewestStrip() const {
    if (!offersRows_) return std::nullopt;
    return Control{Controls::lblCloneRow, table_.global.ActiveRow - 2};
}

void RoundController::ExitGame() {
    Global& global = table_.global;
    const Raised busy(global.GameBusy);
    if (Confirm("- Exit -")) {
        leaving_ = true;
        table_.panel.DisplayText({}, Grey("Ok, see you later..."));
        table_.panel.Say();
        table_.Wait(1500);
        host_.SaveOnLeaving();
        if (global.PlayState == PlayStates::kPlaying) table_.music.MusicCommand("Stop");
        table_.machine.clock.RequestEnd();
        table_.machine.clock.PumpEvents(0);
    }
    saved_.PutBack();
    table_.panel.Say();
}

/// Asks "Are you sure ?" under a title. The message and the buttons are put aside meanwhile.
bool RoundController::Confirm(const std::string& title) {
    saved_.PutAside();
    table_.panel.DisplayText(Yellow(title), Grey("Are you sure ?"));
    table_.inputBar.Place(Answer::kYes);
    table_.inputBar.Place(Answer::kNo);
    table_.panel.Say("Yes or No");
    const Answer answer = table_.inputBar.WaitFor({Answer::kYes, Answer::kNo});
    table_.inputBar.PutAway(Answer::kYes);
    table_.inputBar.PutAway(Answer::kNo);
    table_.inputBar.Clear();
    return answer == Answer::kYes;
}

void RoundController::EndRound() {
    Global& global = table_.global;
    duel_.RoundEnded();
    next_ = nullptr;  // pressed before the verdict
    table_.ShowWelcome();
    table_.panel.Say();
    table_.rowMarker.StopBlinking(global.ActiveRow);
    table_.board.BuildBoard(global.Settings.GameMode);
    EnableModeButtons(table_.window, true);
    table_.buttons.SetButtonStates(kIdle);
    EnableHoles(table_.window, kMaxColumns, false);
    table_.window.SetPlace(ButtonOf(CommandButton::kStart));
    ForgetGame();
    clock_.Reset();
    global.Settings.GameInProgress = false;
    idle_.Start();
}

void RoundController::ForgetGame() {
    Global& global = table_.global;
    global.ScoreMarks = {};
    global.GuessRows = {};
    global.ActiveRowColors = {};
    global.SecretCode = {};
    global.ActiveRow = 1;
    for (int row = kCodeRowNumber; row <= kMaxRows; ++row) table_.window.SetSpokenRow(row, {});
    NameHoles(global, table_.window);
}

}  // namespace quendrel
