// The keys that make the windows larger and smaller: all of them follow, each with the pictures of
// its own density and with what it showed.
#include <filesystem>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMovie>
#include <gtest/gtest.h>

#include "AllWindows.h"
#include "ScaledWindows.h"
#include "SkinCopy.h"
#include "settings/SkinList.h"
#include "settings/TuneListBox.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"
#include "ui/skin/WindowShape.h"

namespace quendrel::test {
namespace {

constexpr QRgb kOpaqueWhite = 0xFFFFFFFF;
constexpr QRgb kYellow = 0xFFFFFF00;

class ScaleKeysTest : public AllWindows {
protected:
    /// The widths of all windows, the main one's first.
    std::vector<int> Widths() {
        std::vector<int> widths;
        for (const QWidget* const window : All()) widths.push_back(window->width());
        return widths;
    }

    /// The picture of a window of a skin, as the window shows it where a pixel is a pixel.
    static QImage Pictured(const std::string& skin, const std::string& name) {
        const QString window =
            QString::fromStdString(QUENDREL_SKIN_FOLDER "/" + skin + "/" + name + "/" + name);
        return CutBy(window + "mask.bmp", kOpaqueWhite, window + ".bmp");
    }

    /// Whether the configuration window shows the second skin in the outline of the first.
    void ExpectPreviewed(const QString& tree) const {
        const QString skins = QUENDREL_SKIN_FOLDER "/";
        ExpectSame(PaintedBy(*config),
                   CutBy(skins + "Atelier/" + tree + "Config/Configmask.bmp", kOpaqueWhite,
                         skins + "Daylight/" + tree + "Config/Config.bmp"),
                   "the preview");
    }

    /// Whether the window shows each pixel of the picture two by two, looked at here and there.
    static void ExpectTwoByTwo(QWidget& window, const QImage& single, const std::string& what) {
        const QImage picture = PaintedBy(window);
        ASSERT_EQ(picture.size(), 2 * single.size()) << what;
        for (const QPoint at : {QPoint(320, 30), QPoint(100, 250), QPoint(400, 300)}) {
            for (const QPoint beside : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
                EXPECT_EQ(picture.pixel(2 * at + beside), single.pixel(at)) << what;
            }
        }
    }

    static QImage Splash(const QString& tree) {
        const QString file = ":/builtin/" + tree + "splash.png";
        return CutBy(file, kYellow, file);
    }

    void UseCopyOfSkin() {
        CopySkin(folder.path() + "/Copy");
        CopySecondTree(folder.path() + "/Copy");
        global.SkinFolder = folder.path() + "\\";
        global.SkinNames = {"Copy"};
    }

    /// Gives a bitmap of the second tree a compression that there is none of, as its only fault.
    std::string Spoil(const std::string& name) const {
        const std::string file = "Copy/2x/" + name;
        std::string bytes = folder.Read(file);
        bytes.at(30) = 99;
        folder.Write(file, bytes);
        return folder.path() + "/" + file;
    }
};

TEST_F(ScaleKeysTest, AllWindowsFollowTheKeysOfEachAtOnce) {
    Open();
    const std::vector<int> single{655, 460, 640, 460, 464};
    ASSERT_EQ(Widths(), single);
    for (QWidget* const on : {static_cast<QWidget*>(&main), static_cast<QWidget*>(config.get()),
                              Find(*config, "txtPlayer(1)"), Find(*config, "lstPlayList"),
                              Find(*config, "lstFileList"), static_cast<QWidget*>(high.get()),
                              static_cast<QWidget*>(about.get()), Find(*about, "cmdOk")}) {
        const std::string name = on->objectName().toStdString();
        on->setFocus();
        PressScaleKey(on, Qt::Key_Plus);
        EXPECT_EQ(Widths(), (std::vector<int>{819, 575, 800, 575, 580})) << name;
        PressScaleKey(on, Qt::Key_Equal);
        EXPECT_EQ(Widths(), (std::vector<int>{983, 690, 960, 690, 696})) << name;
        PressScaleKey(on, Qt::Key_Minus);
        EXPECT_EQ(Widths(), (std::vector<int>{819, 575, 800, 575, 580})) << name;
        PressScaleKey(on, Qt::Key_0);
        EXPECT_EQ(Widths(), single) << name;
    }
}

TEST_F(ScaleKeysTest, TheScaleEndsWhereTheScreenDoesAndAtASinglePixel) {
    Open();
    // The screen's 1700 pixels have room for 2.81 times the main window's 605.
    PressScaleKey(about.get(), Qt::Key_Plus, 12);
    EXPECT_EQ(main.size(), QSize(1801, 1664));
    EXPECT_EQ(global.View.chosen, 2.75);
    PressScaleKey(about.get(), Qt::Key_Minus, 12);
    EXPECT_EQ(main.size(), QSize(655, 605));
    EXPECT_EQ(global.View.chosen, 1);
}

TEST_F(ScaleKeysTest, AtOneAndTwoEachWindowShowsThePictureOfItsDensityPixelForPixel) {
    Open();
    for (int time = 1; time <= 2; ++time) {
        ExpectSame(PaintedBy(*config), Pictured("Atelier", "Config"), "config");
        ExpectSame(PaintedBy(*high), Pictured("Atelier", "High"), "high");
        ExpectSame(PaintedBy(*about), Pictured("Atelier", "About"), "about");
        ExpectSame(PaintedBy(splash), Splash(""), "splash");
        PressScaleKey(&main, Qt::Key_Plus, 4);
        ExpectSame(PaintedBy(*config), Pictured("Atelier/2x", "Config"), "config");
        ExpectSame(PaintedBy(*high), Pictured("Atelier/2x", "High"), "high");
        ExpectSame(PaintedBy(*about), Pictured("Atelier/2x", "About"), "about");
        ExpectSame(PaintedBy(splash), Splash("2x/"), "splash");
        PressScaleKey(&main, Qt::Key_0);
    }
}

TEST_F(ScaleKeysTest, ButtonsShowThePicturesOfTheWindowsDensityToo) {
    Open();
    const auto pictured = [](const QString& file) {
        return QImage(QUENDREL_SKIN_FOLDER "/Atelier/" + file)
            .convertToFormat(QImage::Format_RGB32);
    };
    const auto shown = [](QWidget* button) {
        return button->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const std::vector<std::pair<QWidget*, QString>> expected{
        {Find(*config, "cmdOk"), "Config/Interface/Ok_Up.bmp"},
        {Find(*high, "cmdOk"), "High/Interface/Ok_Up.bmp"},
        {Find(*high, "cmdMode"), "High/Interface/Easy.bmp"},
        {Find(*about, "cmdOk"), "About/Interface/Ok_Up.bmp"}};
    for (const auto& [button, file] : expected) {
        ExpectSame(shown(button), pictured(file), file.toStdString());
    }
    PressScaleKey(&main, Qt::Key_Plus, 4);
    for (const auto& [button, file] : expected) {
        ExpectSame(shown(button), pictured("2x/" + file), file.toStdString());
    }
}

TEST_F(ScaleKeysTest, TheAnimationsGoOnWhereTheyAreInTheOtherDensity) {
    Open();
    for (QMovie* const movie : about->findChildren<QMovie*>()) {
        movie->setPaused(true);
        for (int frame = 0; frame < 3; ++frame) movie->jumpToNextFrame();
    }
    for (const auto& [key, factor] : {std::pair{Qt::Key_Plus, 2}, std::pair{Qt::Key_0, 1}}) {
        QList<int> before;
        for (const QMovie* const movie : about->findChildren<QMovie*>()) {
            before.append(movie->currentFrameNumber());
            EXPECT_GE(before.back(), 3);
        }
        PressScaleKey(about.get(), key);
        for (QMovie* const movie : about->findChildren<QMovie*>()) {
            EXPECT_EQ(movie->currentFrameNumber(), before.takeFirst());
            EXPECT_EQ(movie->state(), QMovie::Running);
            const int width = movie->fileName().contains("Torch") ? 52 : 72;
            EXPECT_EQ(movie->currentImage().width(), width * factor);
        }
    }
}

TEST_F(ScaleKeysTest, APreviewedSkinStaysPreviewed) {
    Open();
    Find<QAbstractButton>(*config, "cmdSkin(2)")->click();
    ExpectPreviewed("");
    PressScaleKey(config.get(), Qt::Key_Plus, 4);
    ExpectPreviewed("2x/");
    ExpectSame(PaintedBy(*high), Pictured("Atelier/2x", "High"), "high");
    EXPECT_EQ(global.Settings.SkinPtr, 1);
}

TEST_F(ScaleKeysTest, APreviewedSkinStaysPreviewedWhereAnotherOneComesBeforeIt) {
    Open();
    Find<QAbstractButton>(*config, "cmdSkin(2)")->click();
    ASSERT_EQ(AddSkin(global, "Beacon"), 2);
    PressScaleKey(config.get(), Qt::Key_Plus, 4);
    ExpectPreviewed("2x/");
}

TEST_F(ScaleKeysTest, TheNameThatIsEnteredStays) {
    global.ElapsedSeconds = 75;
    global.ActiveRow = 4;
    global.NewScorePending = true;
    Open();
    auto* const entry = Find<QLineEdit>(*high, "txtEnterName");
    QTest::keyClicks(entry, "Annabel");
    entry->setSelection(4, 2);
    PressScaleKey(entry, Qt::Key_Plus, 4);
    EXPECT_EQ(entry->text(), "Annabel");
    EXPECT_EQ(entry->selectedText(), "be");
    EXPECT_EQ(entry->cursorPosition(), 6);
    EXPECT_TRUE(entry->isVisible());
    EXPECT_TRUE(entry->hasFocus());
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Annabel", 4, 75}));
}

TEST_F(ScaleKeysTest, ASecondTreeThatCanNoLongerBeReadIsSaidAndTheWindowGoesOn) {
    UseCopyOfSkin();
    for (const std::string name : {"Config/Config.bmp", "Config/Interface/Ok_Up.bmp"}) {
        Open();
        const QImage before = Find(*config, "cmdOk")->grab().toImage();
        const std::string spoilt = Spoil(name);
        testing::internal::CaptureStderr();
        PressScaleKey(high.get(), Qt::Key_Plus, 4);
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_NE(said.find("quendrel: " + spoilt + ": "), std::string::npos) << said;
        EXPECT_EQ(config->size(), QSize(1280, 980));
        const QImage single = Pictured("Atelier", "Config");
        ExpectTwoByTwo(*config, single, name);
        PressScaleKey(high.get(), Qt::Key_0);
        EXPECT_EQ(PaintedBy(*config), single);
        EXPECT_EQ(Find(*config, "cmdOk")->grab().toImage(), before);
        std::filesystem::copy_file(FirstSkin() / "2x" / name, spoilt,
                                   std::filesystem::copy_options::overwrite_existing);
    }
}

TEST_F(ScaleKeysTest, AWindowThatOpensWhereItsSecondTreeCannotBeReadIsShownInItsSingleSize) {
    UseCopyOfSkin();
    global.View.chosen = 2;
    for (const auto& [window, shown] :
         {std::pair{"Config", 2}, std::pair{"High", 3}, std::pair{"About", 4}}) {
        for (const std::string name : {".bmp", "mask.bmp", "/Interface/Ok_Over.bmp"}) {
            const bool inFolder = name.front() == '/';
            const std::string file = window + (inFolder ? name : "/" + (window + name));
            const std::string spoilt = Spoil(file);
            testing::internal::CaptureStderr();
            Open();
            // The toolkit says there what its platform lacks.
            const std::string said = testing::internal::GetCapturedStderr();
            EXPECT_NE(said.find("quendrel: " + spoilt +
                                ": Unable to read image data; the skin is shown in its single "
                                "size\n"),
                      std::string::npos)
                << said;
            EXPECT_EQ(said.find("quendrel: "), said.rfind("quendrel: ")) << said;
            ExpectTwoByTwo(*All().at(static_cast<std::size_t>(shown)), Pictured("Atelier", window),
                           file);
            std::filesystem::copy_file(FirstSkin() / "2x" / file, spoilt,
                                       std::filesystem::copy_options::overwrite_existing);
        }
    }
}

TEST_F(ScaleKeysTest, TheMainWindowsControlsArePutInUnitsWhileItIsLarger) {
    Open();
    PressScaleKey(&main, Qt::Key_Plus, 2);
    const Control control{Controls::cmdInput, 1};
    auto* const button = Find(main, NameOf(control).c_str());
    main.SetLeft(control, 101);
    main.SetTop(control, 33);
    main.SetWidth(control, 50);
    // From 151.5, 49.5 to 226.5.
    EXPECT_EQ(button->geometry().topLeft(), QPoint(152, 50));
    EXPECT_EQ(button->geometry().right(), 226);
    PressScaleKey(&main, Qt::Key_0);
    EXPECT_EQ(button->geometry().topLeft(), QPoint(101, 33));
    EXPECT_EQ(button->geometry().width(), 50);
}

}  // namespace
}  // namespace quendrel::test
