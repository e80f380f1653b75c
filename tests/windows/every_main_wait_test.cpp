// What the desktop and a screen reader do inside every wait of the main window's flows: the flow
// ends as it would have without it, and a screen reader's press does what a click does.
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AnyWindowGame.h"
#include "Raised.h"

namespace quendrel::test {
namespace {

/// Under sanitizers, which take long, the presses are left out: the other programs have them.
#ifdef QUENDREL_SANITIZED
constexpr bool kPressesToo = false;
#else
constexpr bool kPressesToo = true;
#endif

const WindowDeed kStart = InMain("cmdMnuBtn(6)");
const WindowDeed kCheck = InMain("cmdMnuBtn(7)");
const WindowDeed kYes = InMain("cmdInput(0)");
const WindowDeed kNo = InMain("cmdInput(1)");
const WindowDeed kAnswerOk = InMain("cmdInput(2)");

/// Fills the row with the code, or with no peg of it.
const WindowDeed kRightRow = Type(kMain, "", "1111");
const WindowDeed kWrongRow = Type(kMain, "", "2222");

std::vector<WindowDeed> Times(int count, const std::vector<WindowDeed>& deeds) {
    std::vector<WindowDeed> all;
    for (int i = 0; i < count; ++i) all = After(all, deeds);
    return all;
}

struct MainFlow {
    std::string name;
    std::vector<WindowDeed> steps;
    /// What the player has done before.
    std::vector<WindowDeed> before = {};
    std::string settings = {};
    /// What is done while the game rests belongs to it.
    bool rests = false;
};

std::ostream& operator<<(std::ostream& out, const MainFlow& flow) { return out << flow.name; }

const std::vector<MainFlow>& MainFlows() {
    static const std::string kDuel = "[Duel]\nMindDuel=True\nBestOf=2\n";
    static const std::vector<MainFlow> flows{
        {.name = "Idle", .steps = {InMain("cmdColBtn(0)")}, .rests = true},
        {.name = "InGame", .steps = {kWrongRow}, .before = {kStart}, .rests = true},
        {.name = "Start", .steps = {kStart}},
        {.name = "StartOfAMatch", .steps = {kStart}, .settings = kDuel},
        {.name = "OwnCode",
         .steps = {kStart, kRightRow, kAnswerOk},
         .settings = "[Misc]\nSetColor=True\n"},
        {.name = "Check", .steps = {kWrongRow, kCheck}, .before = {kStart}},
        {.name = "Won", .steps = {kRightRow, kCheck, kAnswerOk}, .before = {kStart}},
        {.name = "WonTurn",
         .steps = {kRightRow, kCheck, kAnswerOk},
         .before = {kStart},
         .settings = kDuel},
        {.name = "Lost",
         .steps = {kWrongRow, kCheck, kAnswerOk},
         .before = After({kStart}, Times(9, {kWrongRow, kCheck}))},
        {.name = "GivenUp", .steps = {InMain("cmdMnuBtn(4)"), kYes, kAnswerOk}, .before = {kStart}},
        {.name = "NotGivenUp", .steps = {InMain("cmdMnuBtn(4)"), kNo}, .before = {kStart}},
        {.name = "Cloned",
         .steps = {InMain("cmdMnuBtn(5)"), InMain("lblCloneRow(0)")},
         .before = {kStart, kWrongRow, kCheck}},
        {.name = "Left", .steps = {InMain("cmdMnuBtn(0)"), kYes}},
        {.name = "Stayed", .steps = {InMain("cmdMnuBtn(0)"), kNo}},
        {.name = "Reset", .steps = {InMain("cmdDuelBtn"), kYes}, .settings = kDuel},
        {.name = "ResetRefused",
         .steps = {InMain("cmdDuelBtn"), kAnswerOk},
         .before = {kStart},
         .settings = kDuel},
    };
    return flows;
}

/// A control's press in one wait, counted from 1; without a control, all that leaves the flow as it
/// is, in every wait.
struct PressCase {
    int wait = 0;
    QString control = {};
    Act act = Act::kClick;
};

class FlowOfMain : public AnyWindowGame {
public:
    FlowOfMain(const MainFlow& flow, PressCase pressed, bool disturbed)
        : flow_(flow),
          case_(std::move(pressed)),
          disturbs_(disturbed),
          before_(flow.before.begin(), flow.before.end()),
          left_(flow.steps.begin(), flow.steps.end()) {
        folder.Write("settings.ini", "[Game]\nGameMode=0\n" + flow.settings);
        clock.onWait = [this] { Wait(); };
    }

    /// How the game stands at the end.
    std::string Play() {
        Schedule();
        try {
            window.Load(0);
            window.Run();
        } catch (const ProgramEnded&) {
            log.Clear();
        }
        DropWhatIsKept();
        return end_;
    }

    int Waits() const { return waits_; }

    /// What a screen reader can press in the waits in which that is another choice than before.
    const std::vector<PressCase>& Presses() const { return presses_; }

private:
    static constexpr int kStepMs = 100;
    static constexpr int kMostSteps = 600;
    static constexpr int kPatience = 50;
    static constexpr std::size_t kMarker = 1;

    void Schedule() {
        clock.In(kStepMs, [this] {
            Schedule();
            if (++ticks_ > kMostSteps)
                Note("the flow does not end, but stays at " + MainStanding());
            if (!fault.empty()) clock.RequestEnd();
            if (!disturbing_ || HasModal()) Step();
            ThrowKept();
        });
    }

    /// What the player does next. What came of a deed is got over: another window is closed, a
    /// question that is not his is answered "No".
    void Step() {
        if (HasModal()) {
            QTest::keyClick(Top()->windowHandle(), Qt::Key_Escape);
        } else if (!window.isVisible() || window.isMinimized()) {
            window.ComeToFront();
        } else if (!before_.empty()) {
            GoOn(before_);
        } else {
            begun_ = true;
            if (left_.empty() || !GoOn(left_)) GetOver();
        }
    }

    /// Whether the next deed could be done or may still be.
    bool GoOn(std::deque<WindowDeed>& left) {
        const WindowDeed next = left.front();
        if (!IsReady(next)) return ++waited_ < kPatience;
        waited_ = settled_ = 0;
        left.pop_front();
        if (next.act == Act::kType) QTest::keyClick(window.windowHandle(), Qt::Key_Home);
        Do(next);
        Compare("rule", Fault().toStdString(), "");
        return true;
    }

    bool IsReady(const WindowDeed& deed) {
        if (deed.act != Act::kType) return IsOffered(deed.control);
        return global.CodeEntry ? IsOffered("lblActiveRow(1)") : RowIsOpen();
    }

    bool RowIsOpen() const {
        return global.Settings.GameInProgress && clock.IsOn(kMarker) && !global.GameBusy;
    }

    bool IsOffered(const QString& name) {
        const QWidget* const control = ControlCalled(window, name);
        return control != nullptr && control->isEnabled();
    }

    void GetOver() {
        for (const char* const answer : {"cmdInput(1)", "cmdInput(2)", "lblCloneRow(0)"}) {
            if (!IsOffered(answer)) continue;
            Do(InMain(answer));
            return;
        }
        if (IsAtRest() && ++settled_ >= 3) Settle();
    }

    void Settle() {
        Compare("picture", PictureFault().toStdString(), "");
        end_ = MainStanding();
        clock.RequestEnd();
    }

    bool IsAtRest() {
        const bool asks = IsOffered("cmdInput(1)") || IsOffered("cmdInput(2)") ||
                          IsOffered("lblCloneRow(0)") || global.GameBusy || global.CodeEntry;
        return !asks && (RowIsOpen() || !global.Settings.GameInProgress);
    }

    void Wait() {
        if (!begun_ || disturbing_ || HasModal() || !fault.empty() || end_ != kEnded) return;
        if (!flow_.rests && IsAtRest()) return;
        if (flow_.rests && doneAt_ == left_.size()) return;
        doneAt_ = left_.size();
        ++waits_;
        if (disturbs_) DisturbByAll();
        if (case_.wait != waits_) return;
        Do({case_.act, kMain, case_.control, 0, "Press"});
        Compare("rule", Fault().toStdString(), "");
        ThrowKept();
    }

    void DisturbByAll() {
        const Raised disturbing(disturbing_);
        const bool isAnother = NotePresses();
        const std::string before = MainStanding();
        for (const WindowDeed& deed : WhatLeavesAll()) {
            Do(deed);
            Compare("rule", Fault().toStdString(), "");
            Compare("game", MainStanding(), before);
            if (!fault.empty()) fault += "\nafter " + Said(deed);
            if (!fault.empty()) return;
        }
        if (isAnother) Compare("picture", PictureFault().toStdString(), "");
    }

    /// The scale, the screens, the game hidden, a skin that cannot be taken now, and presses by a
    /// screen reader where they are not offered.
    std::vector<WindowDeed> WhatLeavesAll() {
        std::vector<WindowDeed> deeds{
            {Act::kScreen, kMain, {}, 0}, {Act::kScreen, kMain, {}, 1},
            {Act::kScreen, kMain, {}, 2}, {Act::kHide, kMain, {}, 0},
            {Act::kHide, kMain, {}, 1},   {Act::kHide, kMain, {}, 2},
            {Act::kMinimise, kMain},      {Act::kFront, kMain},
            {Act::kDropSpoilt, kMain},
        };
        for (const auto keys :
             {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Minus, Qt::CTRL | Qt::Key_0,
              QKeyCombination(Qt::Key_F1), QKeyCombination(Qt::Key_T)}) {
            deeds.push_back(Strike(kMain, keys.toCombined()));
        }
        if (!IsAtRest() || !IsOffered("cmdMnuBtn(2)")) {
            deeds.push_back({Act::kDrop, kMain});
            deeds.push_back({Act::kPaste, kMain});
        }
        for (const QWidget* const control : Controls(window, false)) {
            const QString name = NameOfControl(*control);
            if (name.isEmpty() || control->isEnabled()) continue;
            deeds.push_back({Act::kAction, kMain, name, 0, "Press"});
        }
        return deeds;
    }

    /// Of holes, colours, rows and modes one is as good as another, and of the commands that open a
    /// window. Whether they are others than in the waits before.
    bool NotePresses() {
        static const QRegularExpression kPressed(
            "^(cmdMnuBtn.[^23].|cmdInput.*|cmdDuelBtn|cmdHideBtn|cmdColBtn.2.|cmdModeBtn.1.|"
            "lblActiveRow.2.|lblCloneRow.0.)$");
        QStringList offered;
        for (const QWidget* const control : Controls(window, true)) {
            const QString name = NameOfControl(*control);
            if (name.contains(kPressed)) offered.append(name);
        }
        if (!seen_.insert(offered).second) return false;
        for (const QString& name : offered) presses_.push_back({waits_, name});
        return true;
    }

    std::string CaseSaid() const override {
        std::string text = "wait " + std::to_string(waits_);
        return disturbs_ ? text : text + ", pressed " + case_.control.toStdString();
    }

    static std::string Said(const WindowDeed& deed) {
        std::ostringstream text;
        text << deed;
        return text.str();
    }

    static constexpr const char* kEnded = "ended";

    const MainFlow& flow_;
    PressCase case_;
    bool disturbs_;
    std::deque<WindowDeed> before_;
    std::deque<WindowDeed> left_;
    std::string end_ = kEnded;
    bool begun_ = false;
    bool disturbing_ = false;
    int ticks_ = 0;
    int waited_ = 0;
    int settled_ = 0;
    int waits_ = 0;
    std::size_t doneAt_ = 1000;
    std::set<QStringList> seen_;
    std::vector<PressCase> presses_;
};

class EveryMainWait : public ::testing::TestWithParam<MainFlow> {};

INSTANTIATE_TEST_SUITE_P(Of, EveryMainWait, ::testing::ValuesIn(MainFlows()),
                         [](const ::testing::TestParamInfo<MainFlow>& one) {
                             return one.param.name;
                         });

struct Played {
    std::string end;
    std::string fault;
    int waits = 0;
    std::vector<PressCase> presses;
};

/// One game after the other, or they would see each other's windows.
Played Play(const MainFlow& flow, const PressCase& pressed, bool disturbs) {
    FlowOfMain game(flow, pressed, disturbs);
    const std::string end = game.Play();
    return {end, game.fault, game.Waits(), game.Presses()};
}

TEST_P(EveryMainWait, IsLeftAsItIsAndTakesAScreenReadersPressForAClick) {
    const Played undisturbed = Play(GetParam(), {}, false);
    ASSERT_EQ(undisturbed.fault, "");
    ASSERT_GT(undisturbed.waits, 0);
    const Played disturbed = Play(GetParam(), {}, true);
    ASSERT_EQ(disturbed.fault, "");
    ASSERT_EQ(disturbed.end, undisturbed.end);
    for (PressCase pressed : disturbed.presses) {
        if (!kPressesToo) break;
        const Played clicked = Play(GetParam(), pressed, false);
        ASSERT_EQ(clicked.fault, "");
        pressed.act = Act::kAction;
        const Played said = Play(GetParam(), pressed, false);
        ASSERT_EQ(said.fault, "");
        ASSERT_EQ(said.end, clicked.end)
            << pressed.control.toStdString() << " in wait " << pressed.wait;
    }
}

}  // namespace
}  // namespace quendrel::test
