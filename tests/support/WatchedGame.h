// What must hold in a game at every moment at which the player can do something.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "AnyGame.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/main/Board.h"

namespace quendrel::test {

class WatchedGame : public AnyGame {
public:
    using AnyGame::AnyGame;

    /// What does not hold: the name of the rule before a colon, and the facts after it. Empty where
    /// everything does. The slow rules compare whole pictures.
    std::string Fault(bool slowRulesToo) {
        Look();
        for (std::string (WatchedGame::*const rule)() :
             {&WatchedGame::ButtonFault, &WatchedGame::AnswerFault, &WatchedGame::RowFault,
              &WatchedGame::MarkFault, &WatchedGame::ColorFault, &WatchedGame::HoleFault,
              &WatchedGame::LineFault, &WatchedGame::TimerFault, &WatchedGame::WayFault}) {
            if (std::string fault = (this->*rule)(); !fault.empty()) return fault;
        }
        if (!slowRulesToo) return {};
        std::string fault = ScreenFault();
        return fault.empty() ? RebuiltFault() : fault;
    }

    /// How the game stands, but for the row that is filled.
    std::string Standing() {
        Look();
        std::string text = ButtonsThatAreOn() + '|' + lines_ + '|';
        text += inGame_ ? "in mode " + std::to_string(global.Settings.GameMode) : "idle";
        text += " row " + std::to_string(global.ActiveRow) + " code" + Pegs(global.SecretCode);
        for (int row = 1; row < global.ActiveRow; ++row) {
            text += ", " + Pegs(global.GuessRows[row]) + " =" + Pegs(global.ScoreMarks[row]);
        }
        text += " round " + std::to_string(global.Settings.Round) + " turn " +
                std::to_string(global.Settings.PlrTrn);
        for (int player : {1, 2}) text += ' ' + std::to_string(global.Settings.PlrPos[player]);
        return text;
    }

protected:
    /// The order in which a game makes its timers.
    enum Timers : std::uint8_t { kMusic, kMarker, kClock };

    /// Takes in how the game stands now.
    void Look() {
        inGame_ = global.Settings.GameInProgress;
        question_ = Offers(Answer::kYes) || Offers(Answer::kOk);
        allOff_ = ButtonsThatAreOn().empty();
        lines_.clear();
        for (int line = 1; line <= 4; ++line) {
            lines_ += window.Line(line).text + (line < 4 ? "/" : "");
        }
        if (clock.IsOn(kMarker) || !RowIsOpen()) {
            coversSince_.reset();
        } else if (!coversSince_) {
            coversSince_ = clock.Now();
        }
    }

    bool Offers(Answer answer) const { return game.table.inputBar.Offers(answer); }
    bool Takes(Answer answer) const { return game.table.inputBar.Takes(answer); }
    bool OffersRows() const { return game.round.NewestStrip().has_value(); }
    bool RowIsOpen() const { return inGame_ && !allOff_; }

private:
    static std::string Pegs(const RowOfPegs& row) {
        std::string text;
        for (int column = 1; column <= kMaxColumns; ++column) {
            text += ' ' + std::to_string(row[column]);
        }
        return text;
    }

    bool IsOn(CommandButton button) { return window.Of(ButtonOf(button)).enabled; }

    std::string ButtonsThatAreOn() {
        std::string names;
        for (std::size_t i = 0; i < kCommandButtons; ++i) {
            if (IsOn(static_cast<CommandButton>(i))) names += ' ' + std::string(ButtonNames[i]);
        }
        return names;
    }

    bool RowIsFull() const {
        const RowOfPegs& row = global.ActiveRowColors;
        return std::count(row.begin(), row.begin() + global.CurrentMode().columns, 0) == 0;
    }

    std::string ButtonFault() {
        const bool asked = global.GameBusy || global.CodeEntry || OffersRows() ||
                           global.NewScorePending || question_;
        std::string expected;
        if (!asked) {
            expected = " Exit About Config";
            // The game follows a window's settings a moment after it has closed.
            const bool high = IsOn(CommandButton::kHigh);
            if (WindowIsOver() ? high : global.Settings.GTimer) expected += " High";
            if (inGame_ && IsOn(CommandButton::kShow)) expected += " Show";
            if (inGame_ && global.ActiveRow > 1) expected += " Clone";
            if (!inGame_) expected += " Start";
            if (inGame_ && RowIsFull()) expected += " Check";
        }
        const std::string on = ButtonsThatAreOn();
        return on == expected ? "" : "buttons: on are" + on + ", and not" + expected;
    }

    std::string AnswerFault() {
        const bool yes = Offers(Answer::kYes);
        if (yes != Offers(Answer::kNo) || (yes && Offers(Answer::kOk))) {
            return "answers: no question has these";
        }
        if (game.table.inputBar.IsAnswered() && !question_) return "answers: one is left";
        for (const Answer answer : {Answer::kYes, Answer::kNo, Answer::kOk}) {
            const RecordingWindow::State& button = window.Of(ButtonOf(answer));
            if (button.visible != Offers(answer) || button.enabled != Takes(answer)) {
                return "answers: the button is not as the bar says";
            }
        }
        return {};
    }

    std::string RowFault() {
        const Mode& mode = global.CurrentMode();
        if (global.ActiveRow < 1 || global.ActiveRow > mode.rows) return "rows: none is active";
        for (int row = 1; row <= kMaxRows; ++row) {
            if (row < global.ActiveRow && !IsFilled(global.GuessRows[row])) {
                return "rows: " + std::to_string(row) + Pegs(global.GuessRows[row]);
            }
            if (row > global.ActiveRow && global.GuessRows[row] != RowOfPegs()) {
                return "rows: pegs above the active one";
            }
        }
        if (!InRange(global.ActiveRowColors)) return "rows:" + Pegs(global.ActiveRowColors);
        if (RowIsNotOfIdleGame()) return "rows: an idle game has pegs";
        const bool set = inGame_ && !global.CodeEntry;
        if (set ? !IsFilled(global.SecretCode) : !InRange(global.SecretCode)) {
            return "rows: code" + Pegs(global.SecretCode);
        }
        return {};
    }

    bool RowIsNotOfIdleGame() const {
        if (inGame_) return false;
        return global.ActiveRowColors != RowOfPegs() || global.SecretCode != RowOfPegs();
    }

    bool InRange(const RowOfPegs& row) const {
        const Mode& mode = global.CurrentMode();
        for (int column = 1; column <= kMaxColumns; ++column) {
            const int most = column <= mode.columns ? mode.colors : 0;
            if (row[column] < 0 || row[column] > most) return false;
        }
        return true;
    }

    bool IsFilled(const RowOfPegs& row) const {
        const auto* const end = row.begin() + global.CurrentMode().columns;
        return InRange(row) && std::count(row.begin(), end, 0) == 0;
    }

    /// Counts as the rules of the game do by hand: first the places, then, of each colour, as many
    /// as both rows have.
    std::string MarkFault() {
        for (int row = 1; row < global.ActiveRow; ++row) {
            int places = 0;
            int both = 0;
            for (int column = 1; column <= global.CurrentMode().columns; ++column) {
                if (global.GuessRows[row][column] == global.SecretCode[column]) ++places;
            }
            for (std::int16_t color = 1; color <= kColorCount; ++color) {
                const auto in = [color](const RowOfPegs& pegs) {
                    return std::count(pegs.begin(), pegs.end(), color);
                };
                both +=
                    static_cast<int>(std::min(in(global.GuessRows[row]), in(global.SecretCode)));
            }
            RowOfPegs marks;
            for (int slot = 1; slot <= both; ++slot) {
                marks[slot] = static_cast<std::int16_t>(slot <= places ? 1 : 2);
            }
            if (global.ScoreMarks[row] != marks) return "marks:" + Pegs(global.ScoreMarks[row]);
        }
        return {};
    }

    std::string ColorFault() {
        for (int color = 1; color <= kColorCount; ++color) {
            const RecordingWindow::State& button = window.Of(ColorButton(color));
            const bool chosen = color == global.SelectedColor;
            if (button.held != chosen) return "colors: the chosen one is not the one held";
            if (chosen && (!button.visible || !button.enabled)) return "colors: chosen is none";
            if (button.visible != (color <= global.CurrentMode().colors)) {
                return "colors: not those of the mode";
            }
        }
        return {};
    }

    std::string HoleFault() {
        const int columns = global.CurrentMode().columns;
        for (int column = 1; column <= kMaxColumns; ++column) {
            const RecordingWindow::State& hole = window.Of(Hole(column));
            if (hole.enabled && (!inGame_ || column > columns)) return "holes: too many are on";
            if (!RowIsOpen()) continue;
            if (column <= columns && !hole.enabled) return "holes: one of the open row is off";
            if (hole.top != PegAt(column, global.ActiveRow).y) return "holes: of another row";
        }
        return {};
    }

    bool Says(std::initializer_list<std::string_view> texts) const {
        return std::find(texts.begin(), texts.end(), lines_) != texts.end();
    }

    std::string LineFault() { return LinesFit() ? "" : "lines: " + lines_; }

    bool LinesFit() const {
        if (Offers(Answer::kYes)) {
            return Says({"- Exit -/Are you sure ?//", "- Show -/Are you sure ?//",
                         "- Reset Mind Duel -/Are you sure ?//"});
        }
        if (Offers(Answer::kOk)) {
            return Says({"Please set your color combi-/nation.Press ok when done.//",
                         "Here is the correct row./Press ok when done.//",
                         "Here is the correct row./Press ok when done!//",
                         "Congratulations! you made it./Press ok when done!//",
                         "- Reset Mind Duel -/Sorry, not during play !//",
                         "- It's a tie -/You are boath wery good.//",
                         "Well done Player 1/you won the Mind Duel.//",
                         "Well done Player 2/you won the Mind Duel.//"});
        }
        if (OffersRows()) return Says({"/- Clone -/Choose a row !/"});
        if (global.NewScorePending) {
            return Says(
                {"Well played !/You are one of the/10 best players ever./"
                 "Please enter your name..."});
        }
        if (game.round.IsLeaving()) return Says({"/Ok, see you later...//"});
        const bool covers = inGame_ && !clock.IsOn(kMarker);
        if (!inGame_ || covers) return Says({kWelcome}) || (global.CodeEntry && IsOfTheCode());
        return IsOfAGame() || (global.GameBusy && Says({"/Sorry, no luck this time.//", "///"}));
    }

    bool IsOfTheCode() const {
        return Says({"Please set your color combi-/nation.Press ok when done.//"});
    }

    bool IsOfAGame() const {
        if (Says({"/Game in progress...//"})) return true;
        const SettingsRecord& now = global.Settings;
        // A match that is switched off during a round keeps the lines that it had.
        if (!now.MindDuel && lines_.starts_with("- Mind Duel -/Round: ")) return true;
        std::string match = "- Mind Duel -/Round: ";
        match += std::to_string(now.PlrTrn == 1 ? now.Round + 1 : now.Round) + '/';
        match += std::to_string(now.BestOf);
        for (const int player : {1, 2}) {
            match += "/Player " + std::to_string(player) +
                     ": Guess=" + std::to_string(now.PlrPos[player]);
        }
        return lines_ == match;
    }

    std::string TimerFault() {
        if (clock.IsOn(kMusic) == (global.PlayState == PlayStates::kStopped)) {
            return "timers: that of the music";
        }
        const bool marker = clock.IsOn(kMarker);
        const bool clockIsOn = clock.IsOn(kClock);
        if (marker && !inGame_) return "timers: a marker in an idle game";
        if (coversSince_ && clock.Now() - *coversSince_ > 500) return "timers: no marker";
        const bool wanted = global.Settings.GTimer || WindowIsOver();
        if (clockIsOn && (!wanted || !inGame_ || game.hiding.IsHidden())) {
            return "timers: a clock without a game";
        }
        const bool counts = RowIsOpen() && marker && global.Settings.GTimer;
        if (counts && !clockIsOn && !game.hiding.IsHidden()) return "timers: no clock";
        return {};
    }

    /// Something that leads on can be done, or comes by itself within the longest time in which the
    /// game only shows something.
    std::string WayFault() {
        const bool code = global.CodeEntry && window.Of(Hole(1)).enabled;
        if (!allOff_ || WindowIsOver() || game.hiding.IsHidden() || OffersRows() || code ||
            Takes(Answer::kNo) || Takes(Answer::kOk)) {
            stuckSince_.reset();
            return {};
        }
        if (!stuckSince_) stuckSince_ = clock.Now();
        return clock.Now() - *stuckSince_ > 15'000 ? "way on: none for 15 seconds" : "";
    }

    std::string ScreenFault() {
        if (!window.imageTouched) return {};
        const bool same = *window.screen == window.Image();
        window.imageTouched = false;
        return same ? "" : "screen: it shows something else than the image";
    }

    /// The board as it is built anew, but for the marker, is the one that has been drawn peg by
    /// peg.
    std::string RebuiltFault() {
        if (!RowIsOpen() || !clock.IsOn(kMarker) || WindowIsOver()) return {};
        Log quiet;
        RecordingWindow other(quiet);
        Board board(global, other, clock, game.table.sounds);
        board.SetSkin(game.table.board.Skin());
        board.BuildBoard(global.Settings.GameMode);
        const Point at = NumberAt(global.ActiveRow);
        Picture live = window.Image();
        BitBlt(live, at, kNumberSize, other.Image(), at);
        return LookAlike(live, other.Image()) ? "" : "rebuilt: another board";
    }

    /// An empty hole and an empty slot have cells of their own in the test skin.
    static Pixel AsSeen(Pixel pixel) {
        const Pixel cell = pixel & 0xFFFFFF;
        const bool blank = cell == kPegs || cell == kDots || cell == kModeSheet;
        return blank ? Pixel{kEasyBoard} : cell;
    }

    static bool LookAlike(const Picture& one, const Picture& other) {
        if (one.size() != other.size()) return false;
        for (int y = 0; y < one.height(); ++y) {
            const Pixel* const row = one.Row(y);
            const auto same = [](Pixel a, Pixel b) { return a == b || AsSeen(a) == AsSeen(b); };
            if (!std::equal(row, row + one.width(), other.Row(y), same)) return false;
        }
        return true;
    }

    static constexpr std::string_view kWelcome = "Welcome to/Quendrel v1.0/from/Brimwell";

    bool inGame_ = false;
    bool question_ = false;
    bool allOff_ = false;
    std::string lines_;
    /// Since when the covers close, and since when nothing can be done.
    std::optional<std::int64_t> coversSince_;
    std::optional<std::int64_t> stuckSince_;
};

}  // namespace quendrel::test
