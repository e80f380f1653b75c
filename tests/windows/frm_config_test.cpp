// The configuration window itself: its controls, their names, what they look like and how they
// answer mouse and keyboard.
#include <algorithm>
#include <filesystem>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "ConfigFixture.h"
#include "Geometry.h"
#include "Keys.h"
#include "LetteredSkin.h"
#include "Thrown.h"
#include "audio/Playlist.h"
#include "settings/frmConfig.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::test {
namespace {

const std::string kLongName = "A tune whose name is much too long for any list box of this window";

int LightestOf(const QImage& picture) {
    int lightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            lightest = std::max(lightest, picture.pixelColor(x, y).lightness());
        }
    }
    return lightest;
}

class FrmConfigTest : public ConfigFixture {
protected:
    FrmConfigTest() {
        global.SoundAvailable = true;
        global.Settings.PrvSkin = true;
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier", "Daylight"};
        global.MusicFolder = folder.path() + "\\Music\\";
        std::filesystem::create_directories(folder.path() + "/Music");
        for (const std::string name : {"Air", "Bourree", "Canon"}) {
            folder.Write("Music/" + name + ".mid", "x");
        }
        folder.Write("Music/" + kLongName + ".mid", "x");
        SetPlaylist(global, {"Canon", "Air"});
        Open();
        log.Clear();
    }

    void Open() {
        config = std::make_unique<frmConfig>(global, pictures, mainView, duel, sounds, music);
        config->show();
    }

    /// Skins whose texts are told apart; the second one's file has a fault.
    void OpenWithTwoLetteredSkins() {
        MakeLetteredSkin(folder, "Plain", "");
        MakeLetteredSkin(folder, "Wide",
                         "[Config]\nFace=Inter\nSize=80\nColor=#20E040\nColour=red\n");
        global.SkinFolder = folder.path() + "\\";
        global.SkinNames = {"Plain", "Wide"};
        Open();
    }

    void ExpectTexts(const char* face, int pixels, QRgb color) {
        for (const char* const name : {"lblSkin", "lblBestOf", "txtPlayer(1)", "txtPlayer(2)",
                                       "lstFileList", "lstPlayList"}) {
            EXPECT_EQ(Find(name)->font().family(), face) << name;
            EXPECT_EQ(Find(name)->font().pixelSize(), pixels) << name;
            EXPECT_TRUE(HasPixel(ShownAt(name), color)) << name;
        }
    }

    void OpenDuringARound() {
        global.Settings.GameInProgress = true;
        Open();
    }

    template <class Control = QWidget>
    Control* Find(const char* name) {
        auto* const found = config->findChild<Control*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }

    void Click(const char* name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(Find(name), button);
    }

    /// Of a press that is let go beside the control.
    std::string SoundsOfPress(const char* name, Qt::MouseButton button) {
        log.Clear();
        QTest::mousePress(Find(name), button);
        QTest::mouseRelease(Find(name), button, {}, QPoint(-1, -1));
        return log.Text();
    }

    void ClickItem(const char* list, int row) {
        auto* const box = Find<TuneListBox>(list);
        const QPoint at = box->visualItemRect(box->item(row)).center();
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, at);
    }

    QStringList Items(const char* list) {
        auto* const box = Find<TuneListBox>(list);
        QStringList names;
        for (int i = 0; i < box->count(); ++i) names.append(box->item(i)->text());
        return names;
    }

    QImage ShownAt(const char* name) { return config->grab(Find(name)->geometry()).toImage(); }

    const PictureReader pictures = ReadPictureFile;
    std::unique_ptr<frmConfig> config;
};

TEST_F(FrmConfigTest, EveryButtonHasItsNameHelpPlaceAndSize) {
    const auto expect = [this](const ConfigControl& design) {
        const QWidget* const button = Find(std::string(design.name).c_str());
        const Rect& place = design.place;
        EXPECT_EQ(button->geometry(), QRect(place.left, place.top, place.width, place.height));
        EXPECT_EQ(button->accessibleDescription().toStdString(), design.help);
        return button->accessibleName().toStdString();
    };
    for (const ButtonDesign& design : kConfigButtons) EXPECT_GT(expect(design).size(), 1);
    for (const SwitchDesign& design : kConfigSwitches) EXPECT_EQ(expect(design), design.caption);
}

TEST_F(FrmConfigTest, EverySmallButtonClicksAndTheLargeOnesLouder) {
    for (const char* name :
         {"chkMusic",     "chkRndMusic",  "chkSoundFx",   "chkToolTips", "chkSetColor",
          "chkGTimer",    "chkRndSkin",   "chkPrvSkin",   "chkMindDuel", "cmdSkin(1)",
          "cmdSkin(2)",   "cmdBestOf(1)", "cmdBestOf(2)", "cmdAdd",      "cmdAddAll",
          "cmdRemoveAll", "cmdRemove",    "cmdMove(1)",   "cmdMove(2)",  "cmdListen"}) {
        EXPECT_EQ(SoundsOfPress(name, Qt::LeftButton), "sound 2\n") << name;
        EXPECT_EQ(SoundsOfPress(name, Qt::RightButton), "") << name;
    }
    for (const char* name : {"cmdOk", "cmdCancel", "cmdDefault"}) {
        EXPECT_EQ(SoundsOfPress(name, Qt::LeftButton), "sound 6\n") << name;
    }
}

TEST_F(FrmConfigTest, ASwitchPressedByKeyClicksOnce) {
    QTest::keyClick(Find("chkGTimer"), Qt::Key_Space);
    EXPECT_EQ(log.Text(), "sound 2\n");
}

TEST_F(FrmConfigTest, ASwitchThatAssistiveTechnologySwitchesClicksAndSwitchesOnce) {
    for (const ConfigControl& control : kConfigSwitches) {
        auto* const button = Find<ImageButton>(std::string(control.name).c_str());
        const bool was = button->isChecked();
        log.Clear();
        QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(log.Text(), "sound 2\n") << control.name;
        EXPECT_EQ(button->isChecked(), !was) << control.name;
    }
    const SettingsRecord before = global.Settings;
    Click("cmdOk");
    EXPECT_EQ(global.Settings.GTimer, !before.GTimer);
    EXPECT_EQ(global.Settings.MindDuel, !before.MindDuel);
    EXPECT_EQ(global.Settings.ToolTips, !before.ToolTips);
}

TEST_F(FrmConfigTest, ATuneThatAssistiveTechnologyChoosesIsChosen) {
    const auto toggle = [this](const char* list, int row) {
        QAccessible::queryAccessibleInterface(Find(list))
            ->child(row)
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::toggleAction());
        QCoreApplication::processEvents();
    };
    const auto chosen = [this](const char* list) {
        QStringList names;
        for (const auto* const item : Find<TuneListBox>(list)->selectedItems()) {
            names.append(item->text());
        }
        return names;
    };
    toggle("lstFileList", 2);
    Click("cmdAdd");
    EXPECT_EQ(Items("lstPlayList"), (QStringList{"Canon", "Air", "Bourree"}));
    toggle("lstPlayList", 0);
    EXPECT_EQ(chosen("lstFileList"), QStringList());
    toggle("lstPlayList", 0);  // as by keys, it stays chosen
    EXPECT_EQ(chosen("lstPlayList"), QStringList{"Canon"});
    Click("cmdRemove");
    EXPECT_EQ(Items("lstPlayList"), (QStringList{"Air", "Bourree"}));
}

TEST_F(FrmConfigTest, ASwitchIsSeenAndToldAsItStands) {
    auto* const chkMusic = Find<ImageButton>("chkMusic");
    const QImage on = chkMusic->grab().toImage();
    EXPECT_TRUE(chkMusic->isChecked());
    Click("chkMusic");
    EXPECT_FALSE(chkMusic->isChecked());
    EXPECT_NE(chkMusic->grab().toImage(), on);
    Click("chkMusic");
    EXPECT_TRUE(chkMusic->isChecked());
    EXPECT_EQ(chkMusic->grab().toImage(), on);
}

TEST_F(FrmConfigTest, ButtonsThatActOnThePressActOnTheKeyboardToo) {
    QTest::keyClick(Find("cmdBestOf(2)"), Qt::Key_Space);
    EXPECT_EQ(Find<QLabel>("lblBestOf")->text(), "6");
    QTest::keyClick(Find("cmdAdd"), Qt::Key_Space);
    EXPECT_EQ(Items("lstPlayList"),
              (QStringList{"Canon", "Air", QString::fromStdString(kLongName)}));
    QTest::keyClick(Find("chkGTimer"), Qt::Key_Space);
    EXPECT_TRUE(Find<ImageButton>("chkGTimer")->isChecked());
}

TEST_F(FrmConfigTest, TheTabulatorGoesTheWayTheWindowIsRead) {
    EXPECT_EQ(
        TabOrder(*config, "chkToolTips"),
        (QStringList{"chkToolTips", "chkSoundFx",   "cmdSkin(1)",   "cmdSkin(2)",   "chkSetColor",
                     "chkMusic",    "chkPrvSkin",   "chkGTimer",    "chkRndMusic",  "chkRndSkin",
                     "chkMindDuel", "txtPlayer(1)", "txtPlayer(2)", "cmdBestOf(1)", "cmdBestOf(2)",
                     "lstFileList", "cmdAdd",       "cmdAddAll",    "cmdRemove",    "cmdRemoveAll",
                     "cmdListen",   "lstPlayList",  "cmdMove(1)",   "cmdMove(2)",   "cmdDefault",
                     "cmdCancel",   "cmdOk"}));
}

TEST_F(FrmConfigTest, EveryButtonSoundsByKeyAsByMouse) {
    const auto soundsOf = [this](const ConfigControl& design, Qt::Key key) {
        global.Settings.SoundFx = true;
        return SoundsOfKey(log, Find(std::string(design.name).c_str()), key);
    };
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        for (const SwitchDesign& design : kConfigSwitches) {
            EXPECT_EQ(soundsOf(design, key), "sound 2\n") << design.name;
        }
        for (const ButtonDesign& design : kConfigButtons) {
            const bool large = design.which == ConfigButton::cmdOk ||
                               design.which == ConfigButton::cmdCancel ||
                               design.which == ConfigButton::cmdDefault;
            EXPECT_EQ(soundsOf(design, key), large ? "sound 6\n" : "sound 2\n") << design.name;
        }
    }
}

TEST_F(FrmConfigTest, EnterPressesTheButtonThatHasTheFocusAndNothingElse) {
    const auto rounds = [this] { return Find<QLabel>("lblBestOf")->text(); };
    auto* const more = Find("cmdBestOf(2)");
    more->setFocus();
    QTest::keyClick(more, Qt::Key_Return);
    EXPECT_EQ(rounds(), "6");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "", true);
    QCoreApplication::sendEvent(more, &held);
    EXPECT_EQ(rounds(), "6");
    log.Clear();
    for (const char* const name : {"txtPlayer(1)", "lstFileList", "lstPlayList"}) {
        Find(name)->setFocus();
        QTest::keyClick(Find(name), Qt::Key_Return);
    }
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(rounds(), "6");
    EXPECT_TRUE(config->isVisible());
}

TEST_F(FrmConfigTest, ANameBoxThatGetsTheFocusSelectsItsWholeText) {
    auto* const box = Find<QLineEdit>("txtPlayer(1)");
    config->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(config.get()));
    QTest::mouseClick(box, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(box->selectedText(), "Player 1");
    QTest::keyClicks(box, "Ada");
    EXPECT_EQ(box->text(), "Ada");
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[1], "Ada");
}

TEST_F(FrmConfigTest, ANameOfAnyLengthIsTaken) {
    const QString name(300, 'x');
    auto* const box = Find<QLineEdit>("txtPlayer(2)");
    box->clear();
    QTest::keyClicks(box, name);
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[2], name.toStdString());
}

TEST_F(FrmConfigTest, ANameThatIsPastedIsOneLine) {
    QGuiApplication::clipboard()->setText("Anna\r\nBestOf=xyz");
    for (const char* const name : {"txtPlayer(1)", "txtPlayer(2)"}) {
        auto* const box = Find<QLineEdit>(name);
        box->setText("<>");
        box->setCursorPosition(1);
        box->paste();
        EXPECT_EQ(box->text(), "<Anna BestOf=xyz>");
        EXPECT_EQ(box->cursorPosition(), 16);
    }
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[1], "<Anna BestOf=xyz>");
    EXPECT_EQ(global.Settings.PlayerNames[2], "<Anna BestOf=xyz>");
}

TEST_F(FrmConfigTest, ANameFromTheInputMethodIsOneLine) {
    auto* const box = Find<QLineEdit>("txtPlayer(1)");
    box->clear();
    QInputMethodEvent commit;
    commit.setCommitString("安\n娜");
    QCoreApplication::sendEvent(box, &commit);
    EXPECT_EQ(box->text(), "安 娜");
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[1], "安 娜");
}

TEST_F(FrmConfigTest, WhatTheInputMethodStillComposesBelongsToTheName) {
    for (int player = 1; player <= 2; ++player) {
        auto* const box = Find<QLineEdit>(player == 1 ? "txtPlayer(1)" : "txtPlayer(2)");
        box->setText("An");
        QInputMethodEvent composing(player == 1 ? "h\n" : "na", {});
        QCoreApplication::sendEvent(box, &composing);
    }
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[1], "Anh ");
    EXPECT_EQ(global.Settings.PlayerNames[2], "Anna");
}

TEST_F(FrmConfigTest, ANameThatIsDroppedIsOneLine) {
    auto* const box = Find<QLineEdit>("txtPlayer(2)");
    box->clear();
    QMimeData text;
    text.setText("Be\nn");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(box, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(box, &drop);
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[2], "Be n");
}

TEST_F(FrmConfigTest, ANameThatAssistiveTechnologyEntersIsTakenAsOneLine) {
    auto* const box = Find<QLineEdit>("txtPlayer(1)");
    QAccessible::queryAccessibleInterface(box)->setText(QAccessible::Value, "A\nda");
    Click("cmdOk");
    EXPECT_EQ(global.Settings.PlayerNames[1], "A da");
}

TEST_F(FrmConfigTest, WhatTheContextMenuPastesIsNotSelected) {
    auto* const box = Find<QLineEdit>("txtPlayer(1)");
    config->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(config.get()));
    QTest::mouseClick(box, Qt::LeftButton);
    QCoreApplication::processEvents();
    QGuiApplication::clipboard()->setText("Ada");
    QContextMenuEvent ask(QContextMenuEvent::Mouse, QPoint(5, 5), box->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(box, &ask);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const auto actions = menu->actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
        return action->text().startsWith("&Paste");
    });
    ASSERT_NE(paste, actions.end());
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(*paste).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(box->text(), "Ada");
    EXPECT_EQ(box->selectedText(), "");
    QTest::keyClicks(box, "m");
    EXPECT_EQ(box->text(), "Adam");
}

TEST_F(FrmConfigTest, ANameBoxSelectsItsTextForMouseTabulatorAndWindowOnly) {
    auto* const box = Find<QLineEdit>("txtPlayer(2)");
    for (const Qt::FocusReason reason : {Qt::MouseFocusReason, Qt::TabFocusReason,
                                         Qt::BacktabFocusReason, Qt::ActiveWindowFocusReason}) {
        box->deselect();
        QFocusEvent in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(box, &in);
        QCoreApplication::processEvents();
        EXPECT_EQ(box->selectedText(), "Player 2") << reason;
    }
    for (const Qt::FocusReason reason :
         {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::OtherFocusReason}) {
        box->deselect();
        QFocusEvent in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(box, &in);
        QCoreApplication::processEvents();
        EXPECT_EQ(box->selectedText(), "") << reason;
    }
}

TEST_F(FrmConfigTest, ATuneThatIsTooLongForItsListHasItsNameForTheBalloonAndNoTooltip) {
    auto* const box = Find<TuneListBox>("lstFileList");
    const auto cutAt = [box](int row) {
        return box->CutTuneAt(box->visualItemRect(box->item(row)).center());
    };
    ASSERT_TRUE(cutAt(0).has_value());
    EXPECT_EQ(cutAt(0)->text.toStdString(), kLongName);
    EXPECT_FALSE(cutAt(1).has_value());
    for (const QWidget* const control : config->findChildren<QWidget*>()) {
        EXPECT_EQ(control->toolTip(), "") << control->objectName().toStdString();
    }
    EXPECT_EQ(box->item(0)->toolTip(), "");
}

TEST_F(FrmConfigTest, ABalloonGoesWithTheTuneThatItNames) {
    auto* const box = Find<TuneListBox>("lstFileList");
    PointAt(box->viewport(), box->visualItemRect(box->item(0)).center());
    ASSERT_TRUE(BalloonSays(*config, QString::fromStdString(kLongName)));
    delete box->takeItem(0);
    const auto* const balloon = Find("popHelp");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !balloon->isVisible(); }, 1000));
}

/// How many rows of pixels an accent on a capital and a descender take, from the first that
/// differs to the last.
int RowsThatDiffer(const QImage& a, const QImage& b) {
    int first = -1;
    int last = -2;
    for (int y = 0; y < a.height(); ++y) {
        if (a.copy(0, y, a.width(), 1) == b.copy(0, y, b.width(), 1)) continue;
        if (first < 0) first = y;
        last = y;
    }
    return last - first + 1;
}

TEST_F(FrmConfigTest, AccentsAndDescendersAreWholeInNameBoxesSkinNameAndLists) {
    const QString tallAndDeep = QString::fromUtf8("\u1ebegj");
    const auto rowsOf = [&](const std::function<void(const QString&)>& show) {
        show("");
        const QImage empty = config->grab().toImage();
        show(tallAndDeep);
        return RowsThatDiffer(config->grab().toImage(), empty);
    };
    const auto box = [this](const QString& text) {
        Find<QLineEdit>("txtPlayer(1)")->setText(text);
    };
    const auto skin = [this](const QString& text) { Find<QLabel>("lblSkin")->setText(text); };
    const auto tune = [this](const QString& text) {
        Find<TuneListBox>("lstPlayList")->item(1)->setText(text);
    };
    EXPECT_GE(rowsOf(box), 21);  // the toolkit draws its own boxes between the pixels
    EXPECT_EQ(rowsOf(skin), 22);
    EXPECT_EQ(rowsOf(tune), 22);
}

TEST_F(FrmConfigTest, OneListAtMostShowsASelection) {
    auto* const files = Find<TuneListBox>("lstFileList");
    auto* const tunes = Find<TuneListBox>("lstPlayList");
    EXPECT_EQ(files->selectedItems().size(), 1);
    ClickItem("lstPlayList", 1);
    EXPECT_EQ(files->selectedItems().size(), 0);
    EXPECT_EQ(tunes->currentRow(), 1);
    ClickItem("lstFileList", 2);
    EXPECT_EQ(files->currentRow(), 2);
    EXPECT_EQ(tunes->selectedItems().size(), 0);
}

TEST_F(FrmConfigTest, ArrowKeysChooseInTheListThatHasTheFocus) {
    ClickItem("lstFileList", 1);
    QTest::keyClick(Find("lstFileList"), Qt::Key_Down);
    Click("cmdAdd");
    EXPECT_EQ(Items("lstPlayList"), (QStringList{"Canon", "Air", "Bourree"}));
}

TEST_F(FrmConfigTest, KeysChooseInAListAndScrollIt) {
    std::vector<std::string> tunes(20);
    for (std::size_t i = 0; i < tunes.size(); ++i) tunes[i] = "Tune " + std::to_string(i);
    SetPlaylist(global, tunes);
    Open();
    auto* const list = Find<TuneListBox>("lstPlayList");
    list->setFocus();
    // Six tunes fill the box.
    struct Step {
        Qt::Key key;
        int row;
        int top;
    };
    for (const Step& step : {Step{Qt::Key_Down, 0, 0},
                             {Qt::Key_Down, 1, 0},
                             {Qt::Key_End, 19, 14},
                             {Qt::Key_Up, 18, 14},
                             {Qt::Key_PageUp, 13, 13},
                             {Qt::Key_PageDown, 18, 13},
                             {Qt::Key_Home, 0, 0}}) {
        QTest::keyClick(list, step.key);
        EXPECT_EQ(list->currentRow(), step.row) << step.key;
        EXPECT_EQ(list->verticalScrollBar()->value(), step.top) << step.key;
        EXPECT_EQ(list->selectedItems(), (QList{list->item(step.row)})) << step.key;
    }
}

TEST_F(FrmConfigTest, NoKeyDeselectsATune) {
    auto* const list = Find<TuneListBox>("lstFileList");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(list->selectedItems(), (QList{list->item(1)}));
}

TEST_F(FrmConfigTest, ATuneIsMovedByKeysAlone) {
    config->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(config.get()));
    const auto strike = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    Find("lstPlayList")->setFocus();
    strike(Qt::Key_Down);
    strike(Qt::Key_Tab);
    strike(Qt::Key_Tab);
    strike(Qt::Key_Space);
    EXPECT_EQ(Items("lstPlayList"), (QStringList{"Air", "Canon"}));
    strike(Qt::Key_Backtab);
    strike(Qt::Key_Return);
    EXPECT_EQ(Items("lstPlayList"), (QStringList{"Canon", "Air"}));
    EXPECT_EQ(Find<TuneListBox>("lstPlayList")->currentRow(), 0);
}

TEST_F(FrmConfigTest, TextIsLightOnADarkWellAndItsGroundIsTheSkins) {
    const auto groundOf = [this] { return config->grab().toImage().pixelColor(340, 216); };
    const QColor ground = groundOf();
    EXPECT_LT(ground.lightness(), 90);
    Find<QLineEdit>("txtPlayer(1)")->setText("");
    EXPECT_LT(LightestOf(ShownAt("txtPlayer(1)")), 90);
    Find<QLineEdit>("txtPlayer(1)")->setText("Anna");
    EXPECT_GT(LightestOf(ShownAt("txtPlayer(1)")), 200);
    Click("cmdSkin(2)");
    EXPECT_NE(groundOf(), ground);
}

TEST_F(FrmConfigTest, PreviewPutsTheBrowsedSkinOnTheWindow) {
    const QImage before = config->grab().toImage();
    Click("cmdSkin(2)");
    EXPECT_EQ(Find<QLabel>("lblSkin")->text(), "Daylight");
    EXPECT_NE(config->grab().toImage(), before);
    Click("cmdSkin(1)");
    EXPECT_EQ(config->grab().toImage(), before);
}

TEST_F(FrmConfigTest, ItsTextsFollowTheFontsOfAPreviewedSkinAndComeBack) {
    OpenWithTwoLetteredSkins();
    ExpectTexts("Yanone Kaffeesatz", 18, 0xEBE6DA);
    Click("cmdSkin(2)");
    ExpectTexts("Inter", 14, 0x20E040);
    Click("cmdSkin(1)");
    ExpectTexts("Yanone Kaffeesatz", 18, 0xEBE6DA);
}

TEST_F(FrmConfigTest, CancelForgetsTheFontsOfAPreviewedSkin) {
    OpenWithTwoLetteredSkins();
    Click("cmdSkin(2)");
    Click("cmdCancel");
    EXPECT_EQ(mainView.fontsOf, "");
    Open();
    ExpectTexts("Yanone Kaffeesatz", 18, 0xEBE6DA);
}

TEST_F(FrmConfigTest, ItsTextsHaveTheFontsOfTheSkinInUse) {
    global.Settings.SkinPtr = 2;
    OpenWithTwoLetteredSkins();
    ExpectTexts("Inter", 14, 0x20E040);
}

TEST_F(FrmConfigTest, WhatIsWrongWithTheFontsOfASkinIsSaidWhenItIsPreviewed) {
    OpenWithTwoLetteredSkins();
    testing::internal::CaptureStderr();
    Click("cmdSkin(2)");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quendrel: " + folder.path() +
                  "/Wide/Fonts.ini: line 5: there is no key \"Colour\"; the keys are Face, Weight, "
                  "Size, Width and Color\n");
}

TEST_F(FrmConfigTest, TheCloseRequestAndEscapeAreCancel) {
    Click("chkGTimer");
    config->close();
    EXPECT_FALSE(config->isVisible());
    EXPECT_FALSE(global.Settings.GTimer);
    config->show();
    QTest::keyClick(config.get(), Qt::Key_Escape);
    EXPECT_FALSE(config->isVisible());
}

TEST_F(FrmConfigTest, WhatIsThrownOnEscapeComesOutOfTheEventPump) {
    mmcMidi.mode = MidiMode::kPlaying;
    random.onSeed = Fail;
    EXPECT_EQ(ThrownAfter([this] { QTest::keyClick(config.get(), Qt::Key_Escape); }),
              "it went wrong");
}

TEST_F(FrmConfigTest, WhatIsThrownWhereASwitchIsToggledComesOutOfTheEventPump) {
    global.SkinNames[0] = "None";
    mainView.onTrouble = Fail;
    EXPECT_EQ(ThrownAfter([this] { Find<QAbstractButton>("chkPrvSkin")->toggle(); }),
              "it went wrong");
}

TEST_F(FrmConfigTest, LockedSwitchesAreGreyAndDead) {
    OpenDuringARound();
    EXPECT_FALSE(Find("chkGTimer")->isEnabled());
    EXPECT_FALSE(Find("chkMindDuel")->isEnabled());
    EXPECT_TRUE(Find("chkMusic")->isEnabled());
}

TEST_F(FrmConfigTest, ALockedSwitchHasItsBalloonUnlessHelpIsOff) {
    OpenDuringARound();
    auto* const chkGTimer = Find("chkGTimer");
    const QString help =
        "Clicking this option will enable / disable the timer and the possibility to get a "
        "highscore.";
    PointAt(chkGTimer, {5, 5});
    EXPECT_TRUE(BalloonSays(*config, help));
    Click("chkToolTips");
    PointAt(config.get(), {5, 5});
    PointAt(chkGTimer, {5, 5});
    EXPECT_FALSE(BalloonSays(*config, help));
}

}  // namespace
}  // namespace quendrel::test
