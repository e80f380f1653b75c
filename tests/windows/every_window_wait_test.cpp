// Every deed inside every wait of the windows that the game opens: what must hold in windows holds
// before and after it, the window shows what was chosen, and what is kept is what the choices say.
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "AnyWindowGame.h"
#include "Raised.h"
#include "WindowChoices.h"
#include "audio/Playlist.h"
#include "platform/Doors.h"
#include "platform/Files.h"
#include "scores/HighscoreStore.h"

namespace quendrel::test {
namespace {

WindowDeed InConfig(const char* control) { return {Act::kClick, kConfig, control}; }
WindowDeed InHigh(const char* control) { return {Act::kClick, kHigh, control}; }
WindowDeed Tune(const char* list, int tune) { return {Act::kTune, kConfig, list, tune}; }
const WindowDeed kOpenConfig = InMain("cmdMnuBtn(2)");
const WindowDeed kOpenHigh = InMain("cmdMnuBtn(3)");
const WindowDeed kOk = InConfig("cmdOk");
const WindowDeed kCancel = InConfig("cmdCancel");
const WindowDeed kOkOfHigh = InHigh("cmdOk");

/// Finds the code, which is four times the first colour.
const std::vector<WindowDeed> kWin{InMain("cmdMnuBtn(6)"), Type(kMain, "", "1111"),
                                   InMain("cmdMnuBtn(7)"), InMain("cmdInput(2)")};

/// What the player does in a window, from opening it on.
struct WindowFlow {
    std::string name;
    std::vector<WindowDeed> steps;
    /// What he has done before.
    std::vector<WindowDeed> before = {};
    /// Of the settings, beside the clock.
    std::string settings = {};
    /// The list of the best has a file.
    bool hasBest = false;
};

std::ostream& operator<<(std::ostream& out, const WindowFlow& flow) { return out << flow.name; }

const std::vector<WindowFlow>& Flows() {
    static const std::vector<WindowFlow> flows{
        {.name = "Taken", .steps = {kOpenConfig, kOk}},
        {.name = "Switched",
         .steps = {kOpenConfig, InConfig("chkSetColor"), InConfig("chkGTimer"),
                   InConfig("chkMindDuel"), InConfig("cmdBestOf(2)"), kOk}},
        {.name = "Restored",
         .steps = {kOpenConfig, InConfig("cmdDefault"), kOk},
         .settings = "[Misc]\nToolTips=False\n[Duel]\nBestOf=9\nPlayer1=Ann\n"},
        {.name = "SkinPreviewed",
         .steps = {kOpenConfig, InConfig("chkPrvSkin"), InConfig("cmdSkin(2)"), kOk}},
        {.name = "DamagedSkin",
         .steps = {kOpenConfig, InConfig("cmdSkin(2)"), InConfig("cmdSkin(2)"), kOk},
         .settings = "[Skin]\nPrvSkin=True\n"},
        {.name = "Playlist",
         .steps = {kOpenConfig, Tune("lstFileList", 1), InConfig("cmdAdd"), Tune("lstPlayList", 0),
                   InConfig("cmdMove(2)"), kOk}},
        {.name = "Listened", .steps = {kOpenConfig, InConfig("cmdListen"), kCancel}},
        {.name = "Named",
         .steps = {kOpenConfig, Type(kConfig, "txtPlayer(1)", "An"), Type(kConfig, "", "na"),
                   Strike(kConfig, Qt::Key_Tab), Type(kConfig, "", "Bo"), kOk}},
        {.name = "Larger",
         .steps = {kOpenConfig, Strike(kConfig, (Qt::CTRL | Qt::Key_Plus).toCombined()), kOk}},
        {.name = "Given", .steps = {kOpenConfig, {Act::kDrop, kConfig}, kOk}},
        {.name = "GivenInVain", .steps = {kOpenConfig, {Act::kDropSpoilt, kConfig}, kCancel}},
        {.name = "InGame",
         .steps = {kOpenConfig, InConfig("cmdBestOf(1)"), kOk},
         .before = {InMain("cmdMnuBtn(6)")}},
        {.name = "OverAbout", .steps = {kOpenConfig, kCancel}, .before = {InMain("cmdMnuBtn(1)")}},
        {.name = "Best", .steps = {kOpenHigh, kOkOfHigh}},
        {.name = "BestCleared",
         .steps = {kOpenHigh, InHigh("cmdDefault"), kOkOfHigh},
         .hasBest = true},
        {.name = "Won",
         .steps = After(
             kWin, {Type(kHigh, "", "An"), Type(kHigh, "", "na"), Strike(kHigh, Qt::Key_Return)})},
        {.name = "WonWithoutAName", .steps = After(kWin, {kOkOfHigh}), .hasBest = true},
        {.name = "WonAndCleared",
         .steps = After(kWin, {Type(kHigh, "", "Anna"), InHigh("cmdDefault"), kOkOfHigh}),
         .hasBest = true},
        {.name = "WonATurn",
         .steps = After(kWin, {kOkOfHigh}),
         .settings = "[Duel]\nMindDuel=True\n"},
    };
    return flows;
}

/// A deed in one wait, counted from 1, or, where there is none, everything that leaves the window
/// open, one after the other.
struct Case {
    int wait = 0;
    std::optional<WindowDeed> deed = std::nullopt;
};

std::ostream& operator<<(std::ostream& out, const Case& one) {
    if (one.wait == 0) return out << "undisturbed";
    out << "wait " << one.wait << ": ";
    return one.deed ? out << *one.deed : out << "all that leaves the window open";
}

class FlowWindows : public AnyWindowGame {
public:
    FlowWindows(const WindowFlow& flow, std::deque<Case>& cases)
        : flow_(flow), cases_(cases), before_(flow.before.begin(), flow.before.end()) {
        folder.Write("settings.ini", "[Game]\nGameMode=0\n[Misc]\nGTimer=True\n" + flow.settings);
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        if (flow.hasBest) WriteBest();
        clock.onWait = [this] { Wait(); };
    }

    /// Plays the flow once for each case, until one leaves the game otherwise than it was, or ends
    /// it.
    void PlayCases() {
        Schedule();
        try {
            window.Load(0);
            kept_ = Choices(global).Kept();
            best_ = global.HighscoreList;
            window.Run();
        } catch (const ProgramEnded&) {
            log.Clear();
        }
        DropWhatIsKept();
        if (begun_ && fault.empty()) cases_.pop_front();
        Compare("saved choices", SavedChoices(), kept_);
        Compare("saved best", SavedBest(), ScoreChoices::TextOf(best_));
    }

private:
    static constexpr int kStepMs = 100;
    static constexpr int kMostSteps = 300;
    static constexpr const char* kDamaged = "Worn out";

    // The course of a case

    void Schedule() {
        clock.In(kStepMs, [this] {
            Schedule();
            if (++ticks_ > kMostSteps)
                Note("the flow does not end, but stays at " + MainStanding());
            if (!fault.empty()) End();
            if (ended_) return;
            if (done_ > lateAt_) LetGoLate();
            Step();
            ThrowKept();
        });
    }

    void End() {
        ended_ = true;
        window.EndAtOnce();
    }

    /// What the player does next. A deed that disturbs him is got over first.
    void Step() {
        QWidget* const box = WindowCalled(kBox);
        if (box != nullptr && !(disturbing_ && box == disturbedTop_)) {
            QTest::keyClick(box->windowHandle(), Qt::Key_Return);
            ++done_;
        } else if (!window.isVisible() || window.isMinimized()) {
            window.ComeToFront();
        } else if (!disturbing_ && !GoOn(before_)) {
            if (!begun_) Begin();
            if (!ended_ && !GoOn(left_) && !HasModal()) Settle();
        }
    }

    /// Where something has remained of the cases before, the next one is played in another game.
    void Begin() {
        if (first_.empty()) {
            first_ = Standing();
            settings_ = global.Settings;
            playlist_ = global.Playlist;
            list_ = global.HighscoreList;
        } else if (Standing() != first_) {
            return End();
        }
        begun_ = true;
        disturbed_ = false;
        left_.assign(flow_.steps.begin(), flow_.steps.end());
        ticks_ = waits_ = settled_ = 0;
    }

    /// Whether there is something left to do; what cannot be done yet is waited for, but not in a
    /// window of choices. What was to be done in a window that has closed is not done any more.
    bool GoOn(std::deque<WindowDeed>& left) {
        if (left.empty()) return false;
        const WindowDeed next = left.front();
        if (next.window != NameOfWindow(*Top())) {
            if (!HasModal() && !opening_) left.clear();
            return !left.empty();
        }
        if (!IsReady(next)) {
            if (HasModal()) left.pop_front();
            return true;
        }
        left.pop_front();
        settled_ = 0;
        ++done_;
        opening_ = next.window == kMain;
        Check();
        Act(next);
        Check();
        return true;
    }

    bool IsReady(const WindowDeed& deed) {
        if (deed.window == kMain && deed.act == Act::kType) return global.ElapsedSeconds >= 2;
        if (deed.control.isEmpty()) return true;
        const QWidget* const control = ControlCalled(*Top(), deed.control);
        return control != nullptr && control->isEnabled();
    }

    /// The flow is over.
    void Settle() {
        if (++settled_ < 3) return;
        if (cases_.front().wait > 0 && !disturbed_) Note("the wait does not come");
        CheckEnd();
        if (!fault.empty()) return;
        if (cases_.front().wait == 0) {
            if (waits_ == 0) Note("no window comes");
            for (int wait = 1; wait <= waits_; ++wait) cases_.push_back({wait});
        }
        cases_.pop_front();
        begun_ = false;
        if (cases_.empty()) return End();
        if (global.Settings.SkinPtr != settings_.SkinPtr) return End();
        if (Standing() != first_) PutBack();
    }

    /// The choices and the list are as they were, and the game takes them over.
    void PutBack() {
        global.Settings = settings_;
        SetPlaylist(global, playlist_);
        kept_ = Choices(global).Kept();
        best_ = global.HighscoreList = list_;
        std::filesystem::remove(MachinePath(global.HighscoreFile));
        if (flow_.hasBest) WriteBest();
        before_ = {kOpenConfig, kOk};
    }

    // The waits

    /// A wait begins with each step.
    void Wait() {
        if (!begun_ || ended_ || disturbing_ || !HasModal() || done_ == doneAtWait_) return;
        doneAtWait_ = done_;
        opening_ = false;
        if (++waits_ != cases_.front().wait || !fault.empty()) return;
        const Raised disturbing(disturbing_);
        disturbedTop_ = Top();
        disturbed_ = true;
        Check();
        if (const auto deed = cases_.front().deed) {
            Disturb(*deed);
        } else {
            DisturbByAll(cases_.front().wait);
        }
        ThrowKept();
    }

    void DisturbByAll(int wait) {
        for (const WindowDeed& deed : AllDeeds()) {
            if (!fault.empty()) return;
            if (LeadsOn(deed)) {
                cases_.push_back({wait, deed});
            } else {
                DisturbInPlace(deed);
            }
        }
        Compare("picture", PictureFault().toStdString(), "");
    }

    /// The keyboard stays where it is.
    void DisturbInPlace(const WindowDeed& deed) {
        const QPointer<QWidget> top = Top();
        const QPointer<QWidget> place = top->focusWidget();
        Disturb(deed);
        if (top == nullptr || place == nullptr || top->focusWidget() == place) return;
        place->setFocus();
        QCoreApplication::processEvents();
    }

    void Disturb(const WindowDeed& deed) {
        const std::string before = MainStanding();
        const bool staysBox = WindowCalled(kBox) != nullptr && !ClosesBox(deed);
        Act(deed);
        Check();
        if (!ended_ && HasModal()) Compare("game", MainStanding(), before);
        if (!ended_ && staysBox != (WindowCalled(kBox) != nullptr)) Note("the box");
        if (!fault.empty()) fault += "\nafter " + Said(deed);
    }

    /// What closes the window, ends the program, or is followed by something later.
    bool LeadsOn(const WindowDeed& deed) {
        if (deed.act == Act::kEnd || ClosesBox(deed)) return true;
        if (deed.act == Act::kLateAction) return true;
        const std::vector<Touch> touches = TouchesOf(deed);
        return std::any_of(touches.begin(), touches.end(), [](const Touch& touch) {
            return touch.clicks && (touch.control == "cmdOk" || touch.control == "cmdCancel");
        });
    }

    // What a deed is to do

    struct Touch {
        QString control;
        bool presses = true;
        bool clicks = true;
    };

    void Act(const WindowDeed& deed) {
        if (deed.act == Act::kEnd) ended_ = true;
        const QWidget* const typed = TypedInto(deed);
        const QString top = NameOfWindow(*Top());
        const bool wasOpen = config_ || scores_;
        Reckon(deed);
        const bool closes = wasOpen && !config_ && !scores_;
        Do(deed);
        if (typed != nullptr && WindowCalled(top) != nullptr) TakeOver(*typed);
        if (closes && WindowCalled(top) != nullptr) Note("it does not close");
    }

    void Reckon(const WindowDeed& deed) {
        if (deed.window != NameOfWindow(*Top()) || deed.window == kBox) return;
        for (const Touch& touch : TouchesOf(deed)) Take(touch);
        if (deed.act == Act::kLateAction && ControlCalled(*Top(), deed.control)->isEnabled()) {
            late_ = deed;
            lateAt_ = done_;
        }
        if (deed.act == Act::kType) ReckonTyping(deed);
        if (config_) ReckonInConfig(deed);
        if (scores_ && deed.act == Act::kDictate) scores_->name = "Zoe";
    }

    void ReckonInConfig(const WindowDeed& deed) {
        const std::string list = deed.control.toStdString();
        const auto& tunes = list == "lstFileList" ? config_->files : config_->playlist;
        const bool isThere = deed.detail < static_cast<int>(tunes.items.size());
        const bool isAction = deed.act == Act::kTuneAction && deed.detail >= 0;
        if (isThere && (deed.act == Act::kTune || isAction)) {
            config_->PressTune(list, deed.detail);
        }
        if (deed.act == Act::kDictate) {
            config_->players.at(deed.control == "txtPlayer(1)" ? 0 : 1) = "Zoe";
        }
        const bool isPasted = deed.act == Act::kPaste && TypedInto(deed) == nullptr;
        if (deed.act != Act::kDrop && !isPasted) return;
        const std::string gift = "A gift";
        if (config_->skins.front() != gift) config_->skins.insert(config_->skins.begin(), gift);
        config_->skin = gift;
    }

    /// Letters take the place of what is selected in a box: of everything, where it was clicked for
    /// them.
    void ReckonTyping(const WindowDeed& deed) {
        const QWidget& top = *Top();
        const QWidget* const at =
            deed.control.isEmpty() ? top.focusWidget() : ControlCalled(top, deed.control);
        const auto* const box = qobject_cast<const QLineEdit*>(at);
        if (box == nullptr) return;
        QString text = box->text();
        const bool selected = box->hasSelectedText();
        const int from = selected ? box->selectionStart() : box->cursorPosition();
        text.replace(from, box->selectedText().size(), deed.text);
        NameOf(*box) = (deed.control.isEmpty() ? text : deed.text).toStdString();
    }

    std::string& NameOf(const QWidget& box) {
        if (scores_) return scores_->name;
        return config_->players.at(box.objectName() == "txtPlayer(1)" ? 0 : 1);
    }

    void Take(const Touch& touch) {
        const std::string control = touch.control.toStdString();
        if (config_) {
            if (touch.presses) config_->Press(control);
            if (touch.clicks) config_->Click(control);
        } else if (scores_ && touch.clicks && control == "cmdDefault") {
            scores_->Default();
            best_ = scores_->Kept();
        }
        if (touch.clicks && (control == "cmdOk" || control == "cmdCancel")) Close(control);
    }

    void Close(const std::string& by) {
        if (config_ && by == "cmdOk") {
            if (config_->skin == kDamaged) config_->skin = Choices(global).skin;
            kept_ = config_->Kept();
        }
        if (scores_) {
            scores_->Ok();
            best_ = scores_->Kept();
        }
        config_.reset();
        scores_.reset();
    }

    /// The buttons of the window that a deed presses.
    std::vector<Touch> TouchesOf(const WindowDeed& deed) {
        const QWidget& top = *Top();
        if (deed.window != NameOfWindow(top) || deed.window == kBox) return {};
        if (deed.act == Act::kKey) return TouchesOfKey(deed.detail);
        if (deed.act == Act::kClose) return {{deed.window == kHigh ? "cmdOk" : "cmdCancel"}};
        const auto* const button =
            dynamic_cast<const ImageButton*>(ControlCalled(top, deed.control));
        if (button == nullptr || !button->isEnabled()) return {};
        const Touch touch{deed.control};
        const bool isSwitch = button->isCheckable();
        switch (deed.act) {
            case Act::kClick:
                return {touch};
            case Act::kDoubleClick:
                return {touch, touch};
            case Act::kLetGoBeside:
                return {{deed.control, true, false}};
            case Act::kAction:
                if (deed.text == (isSwitch ? "Toggle" : "Press")) return {touch};
                return {};
            case Act::kLateAction:
                if (isSwitch) return {};
                return {{deed.control, true, false}};
            default:
                return {};
        }
    }

    std::vector<Touch> TouchesOfKey(int keys) {
        const auto key = QKeyCombination::fromCombined(keys).key();
        const QWidget* const at = Top()->focusWidget();
        const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
        const bool onButton = dynamic_cast<const ImageButton*>(at) != nullptr;
        if (key == Qt::Key_Escape && config_) return {{"cmdCancel"}};
        if (key == Qt::Key_Escape && !scores_->IsEntering()) return {{"cmdOk"}};
        if (isEnter && at != nullptr && at->objectName() == "txtEnterName") return {{"cmdOk"}};
        if (onButton && (isEnter || key == Qt::Key_Space)) return {{at->objectName()}};
        return {};
    }

    /// The end of a press by a screen reader.
    void LetGoLate() {
        lateAt_ = kNever;
        const QWidget* const on = WindowCalled(late_.window);
        const bool click = on == Top() && !ControlCalled(*on, late_.control)->isHidden();
        if (click && !late_.control.startsWith("chk")) Take({late_.control, false, true});
        LetGo();
        Check();
    }

    bool ClosesBox(const WindowDeed& deed) {
        if (deed.window != kBox || NameOfWindow(*Top()) != kBox) return false;
        const bool onButton = !deed.control.isEmpty() && !deed.control.startsWith("qt_");
        const auto key = QKeyCombination::fromCombined(deed.detail).key();
        const bool onFocus = qobject_cast<const QAbstractButton*>(Top()->focusWidget()) != nullptr;
        switch (deed.act) {
            case Act::kClick:
            case Act::kDoubleClick:
                return onButton;
            case Act::kAction:
                return onButton && deed.text == "Press";
            case Act::kKey:
                return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape ||
                       (key == Qt::Key_Space && onFocus);
            default:
                return deed.act == Act::kClose;
        }
    }

    // What keys edit is the toolkit's affair; the choices follow it.

    const QWidget* TypedInto(const WindowDeed& deed) {
        if (deed.window != NameOfWindow(*Top()) || deed.window == kMain) return nullptr;
        const bool types = deed.act == Act::kKey || deed.act == Act::kPaste;
        const QWidget* const at = Top()->focusWidget();
        const bool takesText = dynamic_cast<const QLineEdit*>(at) != nullptr ||
                               dynamic_cast<const QListWidget*>(at) != nullptr;
        if (deed.act == Act::kPaste && dynamic_cast<const QListWidget*>(at) != nullptr) {
            return nullptr;
        }
        const bool typesIntoList = deed.act == Act::kType && deed.control.isEmpty() &&
                                   dynamic_cast<const QListWidget*>(at) != nullptr;
        return (types && takesText) || typesIntoList ? at : nullptr;
    }

    void TakeOver(const QWidget& at) {
        if (!config_ && !scores_) return;
        if (const auto* const box = dynamic_cast<const QLineEdit*>(&at)) {
            NameOf(*box) = box->text().toStdString();
        } else {
            const ConfigChoices shown = ConfigChoices::Shown(*Top());
            config_->files.selected = shown.files.selected;
            config_->playlist.selected = shown.playlist.selected;
        }
    }

    // What must hold

    std::string CaseSaid() const override {
        std::ostringstream text;
        text << cases_.front();
        return text.str();
    }

    void Check() {
        Compare("rule", Fault().toStdString(), "");
        if (ended_) return;
        CheckConfig(WindowCalled(kConfig));
        CheckHigh(WindowCalled(kHigh));
    }

    void CheckConfig(const QWidget* shown) {
        if (shown == nullptr) {
            if (config_) Note("the configuration window is gone");
            return;
        }
        if (!config_) config_ = Choices(global);
        Compare("choices", ConfigChoices::Shown(*shown).Text(), config_->Text());
    }

    void CheckHigh(const QWidget* shown) {
        if (shown == nullptr) {
            if (scores_) Note("the highscore window is gone");
            return;
        }
        if (!scores_) {
            scores_ = ScoreChoices(best_, HasBest());
            const bool inMatch = global.Settings.MindDuel;
            if (global.NewScorePending)
                scores_->Enter(1, global.ElapsedSeconds, inMatch ? "Player 1" : "");
        }
        Compare("best", ScoreChoices::Shown(*shown), scores_->Text());
    }

    /// What is in force once no window is open.
    void CheckEnd() {
        Check();
        Compare("kept", Choices(global).Kept(), kept_);
        Compare("best", ScoreChoices::TextOf(global.HighscoreList), ScoreChoices::TextOf(best_));
        Compare("worn", WornSkin(), Choices(global).skin);
        if (!cases_.front().deed) Compare("picture", PictureFault().toStdString(), "");
        if (global.NewScorePending) Note("a win waits for ever");
    }

    /// The skin whose board the main window shows at its left edge.
    std::string WornSkin() {
        for (const std::string& skin : global.SkinNames) {
            if (skin == kDamaged) continue;
            const Picture board = pictures(folder.path() + "/Skin/" + skin + "/Game/Board.bmp");
            bool same = true;
            for (int y = 0; y < board.height() && same; ++y) {
                for (int x = 0; x < 10; ++x)
                    same = same && window.Image().At(x, y) == board.At(x, y);
            }
            if (same) return skin;
        }
        return "none";
    }

    static ConfigChoices Choices(const Global& from) { return {from, {"Air", "Bourree", "Canon"}}; }

    std::string Standing() {
        std::string text =
            MainStanding() + Choices(global).Text() + ScoreChoices::TextOf(global.HighscoreList);
        for (const std::string& skin : global.SkinNames) text += ", " + skin;
        return text + (global.View.chosen ? " scaled" : "");
    }

    std::string SavedChoices() const {
        Global saved;
        saved.SkinNames = global.SkinNames;
        saved.AppFolder = global.AppFolder;
        saved.MusicFolder = global.MusicFolder;
        SettingsStore(saved, folder.path() + "/settings.ini").LoadSettings();
        LoadPlaylist(saved);
        return Choices(saved).Kept();
    }

    std::string SavedBest() const {
        Global saved;
        saved.Settings.GameMode = 0;
        saved.HighscoreFile = global.HighscoreFile;
        HighscoreStore(saved).LoadHighscores();
        return ScoreChoices::TextOf(saved.HighscoreList);
    }

    /// One time that no win is better than, and one that is slow.
    void WriteBest() {
        Global best;
        best.Settings.GameMode = 0;
        best.HighFolder = global.HighFolder;
        best.HighscoreFile = global.HighscoreFile;
        HighscoreStore file(best);
        file.LoadHighscores();
        best.HighscoreList[1] = {"Eve", 3, 1};
        best.HighscoreList[10] = {"Adam", 10, 3000};
        file.SaveHighscores();
    }

    bool HasBest() const { return FileExists(MachinePath(global.HighscoreFile)); }

    static std::string Said(const WindowDeed& deed) {
        std::ostringstream text;
        text << deed;
        return text.str();
    }

    static constexpr int kNever = 1'000'000;

    const WindowFlow& flow_;
    std::deque<Case>& cases_;
    /// What the player has still to do.
    std::deque<WindowDeed> before_;
    std::deque<WindowDeed> left_;
    bool begun_ = false;
    bool ended_ = false;
    /// What was done last opens a window, if not at once.
    bool opening_ = false;
    bool disturbing_ = false;
    bool disturbed_ = false;
    const QWidget* disturbedTop_ = nullptr;
    int ticks_ = 0;
    int settled_ = 0;
    int waits_ = 0;
    int done_ = 0;
    int doneAtWait_ = -1;
    int lateAt_ = kNever;
    WindowDeed late_;
    /// What is chosen in the window that is open, and what is kept.
    std::optional<ConfigChoices> config_;
    std::optional<ScoreChoices> scores_;
    std::string kept_;
    HighscoreTable best_;
    /// How the game stood first.
    std::string first_;
    SettingsRecord settings_;
    std::vector<std::string> playlist_;
    HighscoreTable list_;
};

class EveryWindowWait : public ::testing::TestWithParam<WindowFlow> {};

INSTANTIATE_TEST_SUITE_P(Of, EveryWindowWait, ::testing::ValuesIn(Flows()),
                         [](const ::testing::TestParamInfo<WindowFlow>& one) {
                             return one.param.name;
                         });

TEST_P(EveryWindowWait, TakesEveryDeedAndKeepsWhatTheChoicesSay) {
    std::deque<Case> cases{{}};
    while (!cases.empty()) {
        FlowWindows game(GetParam(), cases);
        game.PlayCases();
        ASSERT_EQ(game.fault, "");
    }
}

}  // namespace
}  // namespace quendrel::test
