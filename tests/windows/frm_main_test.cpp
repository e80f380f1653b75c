// The main window itself, and what becomes of a window that it has opened.
#include <filesystem>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QMovie>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "Keys.h"
#include "LetteredSkin.h"
#include "MainWindow.h"
#include "Thrown.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

/// Counts how often a timer of this program wakes it.
class WakeUps : public QObject {
public:
    WakeUps() { QCoreApplication::instance()->installEventFilter(this); }

    int Within(int milliseconds) {
        count_ = 0;
        QTest::qWait(milliseconds);
        return count_;
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Timer) ++count_;
        return false;
    }

private:
    int count_ = 0;
};

class FrmMainTest : public MainWindowFixture {
protected:
    /// The face, weight and pixels of a text, and whether it is drawn in a colour.
    void ExpectText(const char* name, const char* face, int weight, int pixels, QRgb color) {
        auto* const label = window.findChild<QWidget*>(name);
        EXPECT_EQ(label->font().family(), face) << name;
        EXPECT_EQ(label->font().weight(), weight) << name;
        EXPECT_EQ(label->font().pixelSize(), pixels) << name;
        EXPECT_TRUE(HasPixel(label->grab().toImage(), color)) << name;
    }

    /// What is heard when a button, enabled for it, goes down.
    std::string SoundOf(Control control, Qt::MouseButton mouseButton) {
        auto* const button =
            window.findChild<QAbstractButton*>(QString::fromStdString(NameOf(control)));
        button->setEnabled(true);
        log.Clear();
        QTest::mousePress(button, mouseButton);
        return log.LinesFrom("sound ");
    }
};

TEST_F(FrmMainTest, AnAboutWindowThatIsBeingClosedCanBePressedAgain) {
    Press("cmdMnuBtn(1)");
    const QPointer<QWidget> closing = Shown("frmAbout");
    ASSERT_FALSE(closing.isNull());
    auto* const ok = closing->findChild<QAbstractButton*>("cmdOk");
    ok->click();
    ok->click();
    ASSERT_FALSE(closing.isNull());  // until the toolkit has handled the event
    window.findChild<QAbstractButton*>("cmdMnuBtn(1)")->click();
    const QPointer<QWidget> next = Shown("frmAbout");
    ok->click();
    EXPECT_TRUE(QTest::qWaitFor([&closing] { return closing.isNull(); }, 1000));
    EXPECT_EQ(Shown("frmAbout"), next);
    EXPECT_FALSE(next.isNull());
}

TEST_F(FrmMainTest, AClosedAboutWindowIsUnloadedAndItsAnimationsWithIt) {
    WakeUps wakeUps;
    for (int time = 1; time <= 2; ++time) {
        Press("cmdMnuBtn(1)");
        const QPointer<QWidget> about = Shown("frmAbout");
        ASSERT_FALSE(about.isNull());
        EXPECT_EQ(about->findChildren<QMovie*>().size(), 3);
        EXPECT_GT(wakeUps.Within(500), 3);
        about->findChild<QAbstractButton*>("cmdOk")->click();
        EXPECT_TRUE(QTest::qWaitFor([&about] { return about.isNull(); }, 1000));
        EXPECT_EQ(wakeUps.Within(500), 0);
    }
}

TEST_F(FrmMainTest, EachWindowBelongsToItAndHasATitleOfItsOwn) {
    window.show();
    EXPECT_EQ(window.windowTitle(), "Quendrel");
    struct Opened {
        const char* button;
        const char* name;
        const char* title;
    };
    for (const Opened& opened : {Opened{"cmdMnuBtn(1)", "frmAbout", "About Quendrel"},
                                 Opened{"cmdMnuBtn(2)", "frmConfig", "Quendrel: Configuration"},
                                 Opened{"cmdMnuBtn(3)", "frmHigh", "Quendrel: Highscores"}}) {
        bool looked = false;
        clock.In(100, [&] {
            QWidget* const shown = Shown(opened.name);
            ASSERT_NE(shown, nullptr) << opened.name;
            EXPECT_EQ(shown->windowTitle(), opened.title);
            EXPECT_EQ(shown->windowType(), Qt::Dialog) << opened.name;
            EXPECT_EQ(shown->windowHandle()->transientParent(), window.windowHandle());
            shown->close();
            looked = true;
        });
        window.findChild<QAbstractButton*>(opened.button)->setEnabled(true);
        Press(opened.button);
        clock.PumpEvents(200);
        EXPECT_TRUE(looked) << opened.name;
    }
}

TEST_F(FrmMainTest, TheAboutWindowIsHiddenWithTheGameAndComesBackBesideIt) {
    for (const bool toTray : {true, false}) {
        tray.available = toTray;
        window.show();
        Press("cmdMnuBtn(1)");
        const QPointer<QWidget> about = Shown("frmAbout");
        ASSERT_FALSE(about.isNull());
        Press("cmdHideBtn");
        EXPECT_EQ(Shown("frmAbout"), nullptr) << toTray;
        EXPECT_EQ(window.isMinimized(), !toTray);
        window.ComeToFront();
        EXPECT_EQ(Shown("frmAbout"), about) << toTray;
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << toTray;
        about->close();
    }
}

TEST_F(FrmMainTest, AWindowThatIsPressedForBeforeTheGameIsHiddenOpensWhenTheGameIsBack) {
    struct Opened {
        const char* button;
        const char* name;
    };
    folder.Write("settings.ini", "[Misc]\nGTimer=True\n");
    window.Load(0);
    window.show();
    for (const Opened& opened :
         {Opened{"cmdMnuBtn(1)", "frmAbout"}, Opened{"cmdMnuBtn(2)", "frmConfig"},
          Opened{"cmdMnuBtn(3)", "frmHigh"}}) {
        bool cameBack = false;
        clock.In(100, [this, opened] {
            Press(opened.button);
            Press("cmdHideBtn");
        });
        clock.In(1000, [this, opened] {
            EXPECT_EQ(Shown(opened.name), nullptr) << opened.name;
            tray.doubleClick();
        });
        clock.In(3000, [&] {
            ASSERT_NE(Shown(opened.name), nullptr) << opened.name;
            Shown(opened.name)->close();
            cameBack = true;
        });
        global.Settings.GameInProgress = false;
        window.SetEnabled(ButtonOf(CommandButton::kStart), true);
        Press("cmdMnuBtn(6)");
        for (int i = 0; i < 20 && !cameBack; ++i) clock.PumpEvents(1000);
        EXPECT_TRUE(cameBack) << opened.name;
    }
}

TEST_F(FrmMainTest, SettingsAreReadOnceTheSplashHasBeenShownWhichGoesWhenTheSoundsAreThere) {
    clock.In(2000, [this] {
        log.Add(Shown("frmSplash") != nullptr && Shown("frmMain") == nullptr ? "splash" : "none");
    });
    clock.In(3999, [this] { folder.Write("settings.ini", "[Game]\nGameMode=1\n"); });
    window.Load(4000);
    EXPECT_EQ(log.LinesFrom("splash"), "splash\n");
    EXPECT_EQ(global.Settings.GameMode, 1);
    EXPECT_EQ(clock.Now(), 4000);
    EXPECT_NE(Shown("frmSplash"), nullptr);

    clock.In(500, [this] { clock.RequestEnd(); });
    EXPECT_THROW(window.Run(), ProgramEnded);
    EXPECT_EQ(Shown("frmSplash"), nullptr);
    EXPECT_NE(Shown("frmMain"), nullptr);
}

TEST_F(FrmMainTest, WhatIsThrownWhereTheWindowComesBackComesOutOfTheEventPump) {
    window.show();
    tray.available = false;
    Press("cmdHideBtn");
    ASSERT_TRUE(window.isMinimized());
    global.SoundAvailable = true;
    random.onSeed = Fail;
    EXPECT_EQ(ThrownAfter([this] { window.showNormal(); }), "it went wrong");
}

TEST_F(FrmMainTest, EveryButtonHasTheSoundOfItsKindAsItGoesDown) {
    struct Kind {
        Controls array;
        int count;
        std::string sound;
    };
    global.SoundAvailable = true;
    global.LastMode = 1;
    for (const Kind& kind :
         {Kind{Controls::cmdMnuBtn, 8, "sound 0\n"}, Kind{Controls::cmdColBtn, 10, "sound 1\n"},
          Kind{Controls::cmdInput, 3, "sound 2\n"}, Kind{Controls::cmdModeBtn, 1, "sound 6\n"}}) {
        for (int i = 0; i < kind.count; ++i) {
            EXPECT_EQ(SoundOf({kind.array, i}, Qt::LeftButton), kind.sound) << i;
        }
    }
    EXPECT_EQ(SoundOf({Controls::cmdModeBtn, 1}, Qt::LeftButton), "");
    EXPECT_EQ(SoundOf({Controls::cmdModeBtn, 2}, Qt::LeftButton), "sound 6\n");
    EXPECT_EQ(SoundOf({Controls::cmdDuelBtn}, Qt::LeftButton), "sound 2\n");
    EXPECT_EQ(SoundOf({Controls::cmdHideBtn}, Qt::LeftButton), "sound 2\n");
    EXPECT_EQ(SoundOf({Controls::cmdTmrBtn}, Qt::LeftButton), "");
}

TEST_F(FrmMainTest, TheRightMouseButtonMakesNoSoundOnACommandAnAnswerOrASmallButton) {
    global.SoundAvailable = true;
    for (const Control control : {ButtonOf(CommandButton::kStart), ButtonOf(Answer::kYes),
                                  Control{Controls::cmdDuelBtn}, Control{Controls::cmdHideBtn}}) {
        EXPECT_EQ(SoundOf(control, Qt::RightButton), "") << NameOf(control);
    }
}

TEST_F(FrmMainTest, TheTabulatorPassesOverTheClockAndTheTexts) {
    const QStringList order = TabOrder(window, "cmdMnuBtn(0)");
    EXPECT_TRUE(order.contains("cmdDuelBtn"));
    for (const char* const name : {"cmdTmrBtn", "lblGTimer", "lblDispRow(1)"}) {
        ASSERT_NE(window.findChild<QWidget*>(name), nullptr) << name;
        EXPECT_FALSE(order.contains(name)) << name;
    }
}

TEST_F(FrmMainTest, ItsTextsFollowTheFontsOfTheSkinAndAreAsUsualInOneWithout) {
    MakeLetteredSkin(folder, "Plain", "");
    MakeLetteredSkin(folder, "Lettered",
                     "[Messages]\nFace=Inter\nWeight=600\nSize=80\n"
                     "[Clock]\nFace=Play\nWeight=400\nSize=90\nColor=#20E040\n");
    for (int line = 1; line <= 4; ++line) window.SetMessageLine(line, Yellow("Hill"));
    const auto expectUsual = [this] {
        for (const char* const line :
             {"lblDispRow(1)", "lblDispRow(2)", "lblDispRow(3)", "lblDispRow(4)"}) {
            ExpectText(line, "Yanone Kaffeesatz", 500, 18, 0xFFFF00);
        }
        ExpectText("lblGTimer", "Yanone Kaffeesatz", 500, 20, 0xEBEBEB);
    };
    window.SetFonts(folder.path() + "\\Plain");
    expectUsual();
    window.SetFonts(folder.path() + "\\Lettered");
    for (const char* const line :
         {"lblDispRow(1)", "lblDispRow(2)", "lblDispRow(3)", "lblDispRow(4)"}) {
        ExpectText(line, "Inter", 600, 14, 0xFFFF00);
    }
    ExpectText("lblGTimer", "Play", 400, 18, 0x20E040);
    window.SetFonts(folder.path() + "\\Plain");
    expectUsual();
}

TEST_F(FrmMainTest, WhatIsWrongWithTheFontsOfASkinIsSaidAndTheRestIsTaken) {
    MakeLetteredSkin(folder, "Lettered", "[Clock]\nFace=No Such Face\n[Messages]\nFace=Inter\n");
    testing::internal::CaptureStderr();
    window.SetFonts(folder.path() + "\\Lettered");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quendrel: " + folder.path() +
                  "/Lettered/Fonts.ini: line 2: the face \"No Such Face\" is not installed; "
                  "Yanone Kaffeesatz stands in for it\n");
    EXPECT_EQ(window.findChild<QWidget*>("lblGTimer")->font().family(), "Yanone Kaffeesatz");
    EXPECT_EQ(window.findChild<QWidget*>("lblDispRow(1)")->font().family(), "Inter");
}

TEST_F(FrmMainTest, ALineHasTheRoomThatItsFontNeeds) {
    MakeLetteredSkin(folder, "Plain", "");
    MakeLetteredSkin(folder, "Large", "[Messages]\nFace=Vollkorn\nSize=150\n");
    const auto* const line = window.findChild<QWidget*>("lblDispRow(2)");
    window.SetFonts(folder.path() + "\\Large");
    EXPECT_LT(line->y(), 112);
    EXPECT_GT(line->height(), 30);
    window.SetFonts(folder.path() + "\\Plain");
    EXPECT_EQ(line->geometry(), QRect(18, 116, 170, 23));
}

class RulesTest : public FrmMainTest {
protected:
    RulesTest() {
        global.AppFolder = folder.path() + "\\";
        window.show();
    }

    void WriteRules() {
        std::filesystem::create_directory(folder.path() + "/Rules");
        folder.Write("Rules/Rules.html", "");
    }

    std::string AddressOfRules() { return "open file://" + folder.path() + "/Rules/Rules.html\n"; }

    static void PressF1(QWidget* in) {
        in->activateWindow();
        // The toolkit takes a window of the active main window for active too.
        ASSERT_TRUE(QTest::qWaitFor([in] { return QApplication::activeWindow() == in; }));
        QTest::keyClick(in, Qt::Key_F1);
    }

    /// Presses F1 in the main window and closes the box that comes; returns what it says.
    std::string BoxAfterF1() {
        std::string said;
        clock.In(0, [&said] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            said = box->text().toStdString();
            box->accept();
        });
        PressF1(&window);
        return said;
    }
};

TEST_F(RulesTest, F1ShowsTheRulesInEveryWindow) {
    WriteRules();
    PressF1(&window);
    EXPECT_EQ(log.LinesFrom("open file"), AddressOfRules());

    for (const char* const name : {"frmConfig", "frmHigh"}) {
        log.Clear();
        clock.In(0, [name] {
            PressF1(Shown(name));
            Shown(name)->hide();
        });
        window.findChild<QAbstractButton*>("cmdMnuBtn(3)")->setEnabled(true);
        Press(name == std::string("frmConfig") ? "cmdMnuBtn(2)" : "cmdMnuBtn(3)");
        EXPECT_EQ(log.LinesFrom("open file"), AddressOfRules()) << name;
    }
    log.Clear();
    Press("cmdMnuBtn(1)");
    PressF1(Shown("frmAbout"));
    EXPECT_EQ(log.LinesFrom("open file"), AddressOfRules());
}

TEST_F(RulesTest, ThePlaceOfTheRulesMayHaveAnyName) {
    for (const auto& [name, address] :
         {std::pair{"Spiele & 100 % Ärger #1", "Spiele%20&%20100%20%25%20%C3%84rger%20%231"},
          {"caf\xE9\\2", "caf%E9%5C2"}}) {
        const std::string odd = folder.path() + "/" + name;
        std::filesystem::create_directories(odd + "/Rules");
        folder.Write(std::string(name) + "/Rules/Rules.html", "");
        global.AppFolder = odd + "\\";
        log.Clear();
        PressF1(&window);
        EXPECT_EQ(log.LinesFrom("open file"),
                  "open file://" + folder.path() + "/" + address + "/Rules/Rules.html\n");
    }
}

TEST_F(RulesTest, RulesThatAreMissingAreSaid) {
    EXPECT_EQ(BoxAfterF1(),
              "The rules cannot be shown: " + folder.path() + "/Rules/Rules.html is missing.");
}

TEST_F(RulesTest, WhereNothingShowsTheRulesTheirPlaceIsSaid) {
    WriteRules();
    links.answer = 0;
    EXPECT_EQ(BoxAfterF1(),
              "Nothing here shows the rules, which are in " + folder.path() + "/Rules/Rules.html");
}

}  // namespace
}  // namespace quendrel::test
