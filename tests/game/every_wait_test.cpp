// Every deed inside every wait of every flow: the rules of a game hold before and after it, and the
// flow ends as it would have without it, or as the deed says.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "PlayedModes.h"
#include "Raised.h"
#include "WatchedGame.h"

namespace quendrel::test {
namespace {

constexpr int kConfig = 2;
constexpr int kHigh = 3;
constexpr int kShow = 4;
constexpr int kClone = 5;
constexpr int kStart = 6;
constexpr int kCheck = 7;
constexpr int kOk = 2;

/// One thing that the player begins, and how he plays until it is over.
struct Flow {
    std::string name;
    Happening begin;
    bool inGame = false;
    /// Rows that are checked before.
    int rows = 0;
    bool solves = false;
    bool ownCode = false;
    bool duel = false;
    /// The last turn of the match.
    bool lastTurn = false;
    /// The first line of its own question, the answer to it, and the flow with the other answer.
    std::string question = {};
    int answer = 1;
    std::string otherwise = {};
};

std::ostream& operator<<(std::ostream& out, const Flow& flow) { return out << flow.name; }

const std::vector<Flow>& Flows() {
    static const std::vector<Flow> flows{
        {.name = "Start", .begin = {Deed::kCommand, kStart}},
        {.name = "StartOfAMatch", .begin = {Deed::kCommand, kStart}, .duel = true},
        {.name = "OwnCode", .begin = {Deed::kCommand, kStart}, .ownCode = true},
        {.name = "Check", .begin = {Deed::kCommand, kCheck}, .inGame = true},
        {.name = "Won", .begin = {Deed::kCommand, kCheck}, .inGame = true, .solves = true},
        {.name = "Lost", .begin = {Deed::kCommand, kCheck}, .inGame = true, .rows = 9},
        {.name = "WonTurn",
         .begin = {Deed::kCommand, kCheck},
         .inGame = true,
         .solves = true,
         .duel = true},
        {.name = "WonMatch",
         .begin = {Deed::kCommand, kCheck},
         .inGame = true,
         .solves = true,
         .duel = true,
         .lastTurn = true},
        {.name = "GivenUp",
         .begin = {Deed::kCommand, kShow},
         .inGame = true,
         .question = "- Show -",
         .answer = 0,
         .otherwise = "NotGivenUp"},
        {.name = "NotGivenUp",
         .begin = {Deed::kCommand, kShow},
         .inGame = true,
         .question = "- Show -",
         .otherwise = "GivenUp"},
        {.name = "Clone", .begin = {Deed::kCommand, kClone}, .inGame = true, .rows = 1},
        {.name = "Left",
         .begin = {Deed::kCommand, 0},
         .question = "- Exit -",
         .answer = 0,
         .otherwise = "Stayed"},
        {.name = "Stayed",
         .begin = {Deed::kCommand, 0},
         .question = "- Exit -",
         .otherwise = "Left"},
        {.name = "StayedInGame",
         .begin = {Deed::kCommand, 0},
         .inGame = true,
         .rows = 1,
         .question = "- Exit -",
         .otherwise = "Left"},
        {.name = "Reset",
         .begin = {Deed::kDuel},
         .duel = true,
         .question = "- Reset Mind Duel -",
         .answer = 0,
         .otherwise = "NotReset"},
        {.name = "NotReset",
         .begin = {Deed::kDuel},
         .duel = true,
         .question = "- Reset Mind Duel -",
         .otherwise = "Reset"},
        {.name = "ResetRefused", .begin = {Deed::kDuel}, .inGame = true, .duel = true},
        {.name = "Config", .begin = {Deed::kCommand, kConfig}},
        {.name = "ConfigInGame", .begin = {Deed::kCommand, kConfig}, .inGame = true, .rows = 1},
        {.name = "High", .begin = {Deed::kCommand, kHigh}},
    };
    return flows;
}

const Flow& FlowCalled(const std::string& name) {
    return *std::find_if(Flows().begin(), Flows().end(),
                         [&](const Flow& flow) { return flow.name == name; });
}

class FlowGame : public WatchedGame {
public:
    explicit FlowGame(const Flow& flow)
        : WatchedGame(PlayedModes().front(), flow.duel), flow_(flow) {
        global.Settings.SetColor = flow.ownCode;
        global.Settings.PlrPos = OneBased<std::uint8_t, 2>({3, 4});
        if (flow.lastTurn) {
            global.Settings.Round = 1;
            global.Settings.PlrTrn = 2;
        }
        random.onSeed = [this] {
            random.script.clear();
            NextCode(played.code);
        };
        clock.onWait = [this] { Wait(); };
    }

    /// Plays the flow to its end; in wait number `wait`, counted from 1, `deed` happens, or, where
    /// there is none, everything that can change nothing there.
    void PlayWith(int wait = 0, const std::optional<Happening>& deed = std::nullopt) {
        disturbedWait_ = wait;
        deed_ = deed;
        Schedule();
        try {
            Run();
        } catch (const std::exception& error) {
            Note(std::string("thrown: ") + error.what());
        }
    }

    /// What came of it.
    std::string standing = "ended";
    std::string fault;
    int waits = 0;
    /// What could be done in the disturbed wait, and whether the flow's own question stood there.
    std::vector<Happening> possible;
    bool asked = false;

private:
    static constexpr int kStepMs = 500;
    static constexpr int kMostSteps = 300;

    void Note(const std::string& what) {
        if (fault.empty()) fault = what;
    }

    void Wait() {
        if (!begun_ || disturbing_ || IsAtRest()) return;
        if (++waits != disturbedWait_) return;
        const Raised disturbing(disturbing_);
        asked = Offers(Answer::kYes);
        if (deed_) {
            Disturb(*deed_);
            return;
        }
        for (const Happening& deed : AllHappenings()) {
            if (CanDo(deed)) {
                possible.push_back(deed);
            } else {
                Disturb(deed);
            }
        }
    }

    bool IsAtRest() {
        Look();
        const bool asks = WindowIsOver() || game.hiding.IsHidden() || Offers(Answer::kYes) ||
                          Offers(Answer::kOk) || OffersRows() || global.GameBusy;
        return !asks && (RowIsOpen() ? clock.IsOn(kMarker) : !global.Settings.GameInProgress);
    }

    void Disturb(const Happening& deed) {
        Note(Fault(false));
        Do(deed);
        Note(Fault(false));
    }

    void Schedule() {
        clock.In(kStepMs, [this] {
            Schedule();
            if (++steps_ > kMostSteps) Note("way on: the flow does not end");
            Note(Fault(false));
            if (!fault.empty()) throw ProgramEnded{};
            Step();
        });
    }

    /// What the player does next.
    void Step() {
        if (const auto deed = ToWindows()) {
            Do(*deed);
        } else if (global.CodeEntry) {
            if (Takes(Answer::kOk) && global.SecretCode == Row(played.code)) {
                Do({Deed::kAnswer, kOk});
            } else {
                Fill(global.SecretCode, played.code);
            }
        } else if (Takes(Answer::kOk)) {
            Do({Deed::kAnswer, kOk});
        } else if (OffersRows()) {
            Do({Deed::kStrip, 0});
        } else if (RowIsOpen() && clock.IsOn(kMarker)) {
            begun_ ? Settle() : ToRow();
        } else if (!global.Settings.GameInProgress && !global.GameBusy) {
            ToIdleGame();
        }
    }

    std::optional<Happening> ToWindows() {
        if (WindowIsOver()) return Happening{Deed::kCancel};
        if (game.hiding.IsHidden()) return Happening{Deed::kRestore, tray.available ? 0 : 2};
        if (!Offers(Answer::kYes)) return std::nullopt;
        const bool own = window.Line(1).text == flow_.question;
        return Happening{Deed::kAnswer, own ? flow_.answer : 1};
    }

    void ToRow() {
        const bool before = global.ActiveRow <= flow_.rows;
        if (!before && flow_.begin != Happening{Deed::kCommand, kCheck}) {
            Begin();
            return;
        }
        const Colors& wanted = before || !flow_.solves ? played.miss : played.code;
        if (global.ActiveRowColors != Row(wanted)) {
            Place(wanted);
        } else if (before) {
            Do({Deed::kCommand, kCheck});
        } else {
            Begin();
        }
    }

    void ToIdleGame() {
        if (begun_) {
            Settle();
        } else if (flow_.inGame) {
            Do({Deed::kCommand, kStart});
        } else {
            Begin();
        }
    }

    void Begin() {
        begun_ = true;
        Do(flow_.begin);
    }

    /// Whatever was clicked meanwhile comes before the second look.
    void Settle() {
        if (++settled_ < 3) return;
        Note(Fault(true));
        standing = Standing();
        clock.RequestEnd();
    }

    /// The next peg of a row that is filled by hand.
    void Fill(const RowOfPegs& row, const Colors& wanted) {
        for (int column = 1; column <= played.columns; ++column) {
            const int color = wanted.at(static_cast<std::size_t>(column - 1));
            if (row[column] == color) continue;
            if (!window.Of(ColorButton(color)).enabled) Do({Deed::kColorOff, color - 1});
            Do({Deed::kColor, color - 1});
            Do({Deed::kHole, column - 1});
            return;
        }
    }

    const Flow& flow_;
    int disturbedWait_ = 0;
    std::optional<Happening> deed_;
    int steps_ = 0;
    int settled_ = 0;
    bool begun_ = false;
    bool disturbing_ = false;
};

class EveryWait : public ::testing::TestWithParam<Flow> {
protected:
    /// The answer to "Are you sure ?": Enter and Escape say "No".
    static std::optional<int> AnswerBy(const Happening& deed) {
        if (deed.deed == Deed::kAnswer) return deed.index;
        const bool no = deed == Happening{Deed::kKey, static_cast<int>(Key::kEnter)} ||
                        deed == Happening{Deed::kKey, static_cast<int>(Key::kEscape)};
        return no ? std::optional(1) : std::nullopt;
    }

    /// How the flow ends after the deed.
    static std::string EndOf(const FlowGame& played, const Happening& deed,
                             const std::string& undisturbed) {
        if (deed.deed == Deed::kEnd) return "ended";
        const std::optional<int> given = played.asked ? AnswerBy(deed) : std::nullopt;
        if (!given || *given == GetParam().answer) return undisturbed;
        FlowGame other(FlowCalled(GetParam().otherwise));
        other.PlayWith();
        return other.standing;
    }
};

INSTANTIATE_TEST_SUITE_P(Of, EveryWait, ::testing::ValuesIn(Flows()),
                         [](const ::testing::TestParamInfo<Flow>& one) { return one.param.name; });

TEST_P(EveryWait, TakesEveryDeedAndTheFlowEndsAsItShould) {
    FlowGame undisturbed(GetParam());
    undisturbed.PlayWith();
    ASSERT_EQ(undisturbed.fault, "");
    ASSERT_GT(undisturbed.waits, 0);
    for (int wait = 1; wait <= undisturbed.waits; ++wait) {
        FlowGame vain(GetParam());
        vain.PlayWith(wait);
        ASSERT_EQ(vain.fault, "") << "in vain, in wait " << wait;
        ASSERT_EQ(vain.standing, undisturbed.standing) << "in vain, in wait " << wait;
        for (const Happening& deed : vain.possible) {
            FlowGame disturbed(GetParam());
            disturbed.PlayWith(wait, deed);
            ASSERT_EQ(disturbed.fault, "") << deed << ", in wait " << wait;
            ASSERT_EQ(disturbed.standing, EndOf(disturbed, deed, undisturbed.standing))
                << deed << ", in wait " << wait;
        }
    }
}

}  // namespace
}  // namespace quendrel::test
