// A player who presses anything anywhere in the real windows, by pointer, by keys and by a screen
// reader, in the middle of whatever goes on: the windows can always be used, and show what they
// would paint.
//
// QUENDREL_MONKEY_EVENTS is the number of deeds in each mode, QUENDREL_MONKEY_SEED the seed of the
// first game; the seed of each next one is one more.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "PlayedModes.h"
#include "WatchedWindows.h"
#include "audio/Playlist.h"
#include "platform/Doors.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/main/CommandButtons.h"

namespace quendrel::test {
namespace {

#ifdef QUENDREL_SANITIZED
constexpr int kDeedsOfAMode = 2500;
#else
constexpr int kDeedsOfAMode = 4000;
#endif
constexpr int kDeedsOfAGame = 500;
constexpr int kLooksCloselyEach = 20;
constexpr std::int16_t kSplashMs = 2000;

int NumberFrom(const char* variable, int otherwise) {
    const char* const text = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe)
    return text == nullptr ? otherwise : std::stoi(text);
}

struct Setting {
    std::string name;
    int mode = 0;
    bool duel = false;
};

std::ostream& operator<<(std::ostream& out, const Setting& setting) { return out << setting.name; }

class WindowMonkey : public WatchedWindows {
public:
    WindowMonkey(const Setting& setting, unsigned seed) : chance_(seed) {
        global.SkinNames = {"Atelier", "Daylight"};
        global.AppFolder = folder.path() + "\\";
        global.HighFolder = folder.path() + "\\High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        global.MusicFolder = folder.path() + "\\Music\\";
        std::filesystem::create_directories(folder.path() + "/Music");
        SetPlaylist(global, {"Canon", "Air"});
        folder.Write("settings.ini", "[Game]\nGameMode=" + std::to_string(setting.mode) +
                                         "\n[Misc]\nGTimer=True\n[Duel]\nMindDuel=" +
                                         (setting.duel ? "True" : "False") + "\n");
        random.onSeed = [this] {
            random.script.clear();
            for (int i = 0; i < 60; ++i) random.script.push_back(Upto(1000) / 1000.0);
        };
    }

    /// Plays until so many deeds are done, the game has ended, or something does not hold.
    void Play(int deeds) {
        left_ = deeds;
        Schedule();
        try {
            window.Load(kSplashMs);
            window.Run();
        } catch (const ProgramEnded&) {
            log.Clear();
        }
        DropWhatIsKept();
    }

    int Done() const { return done_; }

    /// The windows that were shown.
    const std::set<std::string>& Seen() const { return seen_; }

    /// What did not hold, and the deeds that came last before; empty where everything held.
    std::string fault;

    void TestBody() override {}

private:
    int Upto(int count) {
        return static_cast<int>(chance_() % static_cast<unsigned>(std::max(count, 1)));
    }
    bool OneIn(int count) { return Upto(count) == 0; }
    template <class List>
    auto OneOf(const List& list) {
        return *std::next(list.begin(), Upto(static_cast<int>(list.size())));
    }

    void Schedule() {
        clock.In(OneIn(3) ? 0 : Upto(OneIn(10) ? 3000 : 150), [this] {
            if (left_-- == 0) return clock.RequestEnd();
            Schedule();
            ++done_;
            if (OneIn(kLooksCloselyEach)) Keep(PictureFault());
            Do();
            QCoreApplication::processEvents();
            Keep(Fault());
        });
    }

    /// The program's end was thrown where the toolkit called it, as often as not.
    static void DropWhatIsKept() {
        try {
            ThrowKept();
        } catch (const ProgramEnded&) {
            return;
        }
    }

    // What is done

    void Do() {
        QWidget* const on = AnyWindow();
        if (on == nullptr) return ComeBack();
        const int kind = Upto(100);
        if (kind < 30) return Press(*on);
        if (kind < 33) return Point(*on);
        if (kind < 65) return Strike(*on);
        if (kind < 75) return DoAction(*on);
        if (kind < 90) return Onwards(*on);
        if (kind < 93) return Drag(*on);
        if (kind < 94) return Close(*on);
        ComeBack();
    }

    QWidget* AnyWindow() {
        QWidget* const modal = QApplication::activeModalWidget();
        if (modal != nullptr && !OneIn(4)) return modal;
        const std::vector<QWidget*> shown = Windows();
        return shown.empty() ? nullptr : OneOf(shown);
    }

    void Say(const QString& deed) {
        last_.push_back(deed.toStdString());
        if (last_.size() > 12) last_.pop_front();
    }

    /// Any place, most often one on a control.
    QPoint AnyPlace(const QWidget& on) {
        const std::vector<QWidget*> controls = Controls(on, !OneIn(4));
        if (controls.empty() || OneIn(5)) return {Upto(on.width()), Upto(on.height())};
        const QWidget* const control = OneOf(controls);
        return control->mapTo(&on, QPoint(Upto(control->width()), Upto(control->height())));
    }

    void Press(QWidget& on) {
        const QPoint at = AnyPlace(on);
        const auto button = OneOf(std::array{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                             Qt::RightButton, Qt::MiddleButton});
        const QWidget* const under = on.childAt(at);
        Say(QString("press %1 at %2,%3 of %4 %5")
                .arg(button)
                .arg(at.x())
                .arg(at.y())
                .arg(Named(on), under == nullptr ? "" : Named(*under)));
        QWindow* const target = on.windowHandle();
        if (OneIn(12)) return QTest::mouseDClick(target, button, {}, at);
        QTest::mousePress(target, button, {}, at);
        if (!OneIn(10)) Release(button, at);
    }

    /// What was pressed may have closed its window, or be released elsewhere or much later.
    void Release(Qt::MouseButton button, QPoint at) {
        const std::vector<QWidget*> shown = Windows();
        if (shown.empty()) return;
        QWidget* const modal = QApplication::activeModalWidget();
        QWidget* const on = modal != nullptr ? modal : shown.front();
        QTest::mouseRelease(on->windowHandle(), button, {}, at);
    }

    void Point(QWidget& on) {
        const QPoint at = AnyPlace(on);
        Say(QString("point at %1,%2").arg(at.x()).arg(at.y()));
        QTest::mouseMove(on.windowHandle(), at);
    }

    void Drag(QWidget& on) {
        const QPoint from = AnyPlace(on);
        const QPoint to = AnyPlace(on);
        Say(QString("drag %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
        QTest::mousePress(on.windowHandle(), Qt::LeftButton, {}, from);
        const std::vector<QWidget*> shown = Windows();
        if (shown.empty()) return;
        QTest::mouseMove(shown.front()->windowHandle(), to);
        Release(Qt::LeftButton, to);
    }

    void Strike(QWidget& on) {
        // clang-format off
        static constexpr std::array kKeys{
            Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
            Qt::Key_Space, Qt::Key_Space, Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape,
            Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab,
            Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_7,
            Qt::Key_8, Qt::Key_9, Qt::Key_A, Qt::Key_C, Qt::Key_D, Qt::Key_E, Qt::Key_F, Qt::Key_G,
            Qt::Key_H, Qt::Key_I, Qt::Key_K, Qt::Key_L, Qt::Key_M, Qt::Key_N, Qt::Key_O, Qt::Key_P,
            Qt::Key_R, Qt::Key_S, Qt::Key_T, Qt::Key_V, Qt::Key_W, Qt::Key_X, Qt::Key_Y, Qt::Key_Z,
            Qt::Key_F1, Qt::Key_F10, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Menu,
        };
        static constexpr std::array kHeld{
            Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
            Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
        };
        // clang-format on
        const auto key = OneOf(kKeys);
        const auto held = OneOf(kHeld);
        Say(QString("strike %1 with %2").arg(QKeySequence(key).toString()).arg(held));
        QTest::keyClick(on.windowHandle(), key, held);
    }

    /// As a screen reader does. Its press of a plain button ends by a timer of the toolkit's, and
    /// is left to that button's click.
    void DoAction(QWidget& on) {
        const std::vector<QWidget*> controls = Controls(on, false);
        if (controls.empty()) return;
        QWidget* const control = OneOf(controls);
        auto* const actions = QAccessible::queryAccessibleInterface(control)->actionInterface();
        if (actions == nullptr || actions->actionNames().isEmpty()) return;
        const QString action = OneOf(actions->actionNames());
        Say("do " + action + " of " + Named(*control));
        auto* const button = dynamic_cast<ImageButton*>(control);
        const bool plain = button != nullptr && !button->IsChoice();
        if (plain && action == QAccessibleActionInterface::pressAction()) {
            button->click();
        } else {
            actions->doAction(action);
        }
    }

    /// Something that leads on: a name is written, the code found, or a usable control pressed.
    void Onwards(QWidget& on) {
        const auto* const entry = on.findChild<QLineEdit*>("txtEnterName");
        if (entry != nullptr && entry->hasFocus()) return WriteName(on);
        if (&on == &window && global.Settings.GameInProgress && OneIn(2)) return FindCode();
        const std::vector<QWidget*> controls = Controls(on, true);
        if (controls.empty()) return;
        QWidget* const control = OneOf(controls);
        Say("click " + Named(*control));
        QTest::mouseClick(on.windowHandle(), Qt::LeftButton, {},
                          control->mapTo(&on, control->rect().center()));
    }

    void WriteName(QWidget& on) {
        seen_.insert("name entry");
        Say("write a name");
        for (const char letter : std::string(OneIn(2) ? "Anna <b>" : " ")) {
            QTest::keyClick(on.windowHandle(), letter);
        }
    }

    void FindCode() {
        Say("find the code");
        Strike(Qt::Key_Home);
        for (int column = 1; column <= global.CurrentMode().columns; ++column) {
            const int color = global.SecretCode[column];
            if (color == 0) return;
            const auto digit = static_cast<Qt::Key>(Qt::Key_0 + color % kColorCount);
            if (!window.IsEnabled(ColorButton(color))) Strike(digit, Qt::ShiftModifier);
            Strike(digit);
        }
        window.Press(ButtonOf(CommandButton::kCheck));
    }

    void Strike(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.windowHandle(), key, held);
    }

    void Close(QWidget& on) {
        Say("close " + Named(on));
        on.windowHandle()->close();
    }

    void ComeBack() {
        Say("come back");
        if (OneIn(3)) return window.ComeToFront();
        if (tray.doubleClick && OneIn(2)) tray.doubleClick();
        if (tray.vanish && OneIn(2)) tray.vanish();
        tray.available = OneIn(2);
    }

    // What must hold

    /// The first fault ends the game.
    void Keep(const QString& found) {
        for (const QWidget* const shown : Windows())
            seen_.insert(shown->objectName().toStdString());
        if (found.isEmpty() || !fault.empty()) return;
        fault = found.toStdString() + "\nafter";
        for (const std::string& deed : last_) fault += "\n  " + deed;
        clock.RequestEnd();
    }

    std::minstd_rand chance_;
    std::set<std::string> seen_;
    int left_ = 0;
    int done_ = 0;
    std::deque<std::string> last_;
};

class WindowMonkeyTest : public ::testing::TestWithParam<Setting> {};

INSTANTIATE_TEST_SUITE_P(Played, WindowMonkeyTest,
                         ::testing::Values(Setting{"Easy", 0}, Setting{"Medium", 1},
                                           Setting{"Hard", 2}, Setting{"Duel", 0, true}),
                         [](const ::testing::TestParamInfo<Setting>& one) {
                             return one.param.name;
                         });

TEST_P(WindowMonkeyTest, WhateverIsPressedTheWindowsCanBeUsedAndShowWhatTheyPaint) {
    const int events = NumberFrom("QUENDREL_MONKEY_EVENTS", kDeedsOfAMode);
    auto seed = static_cast<unsigned>(NumberFrom("QUENDREL_MONKEY_SEED", 1));
    std::set<std::string> seen;
    for (int done = 0; done < events; ++seed) {
        WindowMonkey monkey(GetParam(), seed);
        monkey.Play(kDeedsOfAGame);
        ASSERT_EQ(monkey.fault, "") << "seed " << seed;
        ASSERT_GT(monkey.Done(), 0);
        done += monkey.Done();
        seen.insert(monkey.Seen().begin(), monkey.Seen().end());
    }
    for (const char* name : {"frmSplash", "frmMain", "frmAbout", "frmConfig", "frmHigh"}) {
        EXPECT_TRUE(seen.contains(name)) << name;
    }
    EXPECT_TRUE(seen.contains("name entry"));
}

}  // namespace
}  // namespace quendrel::test
