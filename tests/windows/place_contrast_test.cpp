// The sign of the place where keys act stands out from what it lies on, wherever the keyboard can
// be, in all our skins.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <numeric>
#include <utility>
#include <vector>

#include <QApplication>
#include <QFocusFrame>
#include <QMovie>
#include <gtest/gtest.h>

#include "AllWindows.h"
#include "Contrast.h"
#include "ScaledWindows.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"
#include "ui/layout/MainLayout.h"

namespace quendrel::test {
namespace {

/// How far from its corners the edge of a control is straight, how far the sign reaches on either
/// side of the edge, and after how much of its length it repeats; all in units.
constexpr int kRounding = 10;
constexpr int kReach = 3;
constexpr int kPitch = 11;

double Apart(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }

/// How a sign is seen.
struct Seen {
    /// The least, over all the pixels that it covers or touches, of how its thread or its ribbon,
    /// whichever does better, stands out from the pixel.
    double contrast = 99;
    /// How thick a line would be that has as many pixels that the sign changes threefold, in units,
    /// where the sign has the fewest.
    double thickness = 99;
};

/// A window without the sign and with it, each as pixels of the same rectangle.
class SignPixels {
public:
    SignPixels(QImage before, QImage after, double scale)
        : before_(std::move(before)), after_(std::move(after)), scale_(scale) {}

    /// Looks at a sign around the edge of a rectangle.
    Seen LookAt(const QRect& edge) {
        FindColors(edge);
        Seen seen;
        // With a pixel more on either side.
        for (const QRect& side : Sides(edge, Pixels(kReach) + 1)) {
            seen.contrast = std::min(seen.contrast, ContrastAlong(side));
            seen.thickness = std::min(seen.thickness, ThicknessAlong(side));
        }
        return seen;
    }

private:
    int Pixels(int units) const { return static_cast<int>(std::lround(units * scale_)); }

    /// The straight parts of the edge, and what lies within some pixels on either side of each.
    std::vector<QRect> Sides(const QRect& edge, int reach) const {
        const int straight = Pixels(kRounding);
        std::vector<QRect> sides;
        for (const int y : {edge.top(), edge.top() + edge.height()}) {
            sides.emplace_back(edge.left() + straight, y - reach, edge.width() - 2 * straight,
                               2 * reach);
        }
        for (const int x : {edge.left(), edge.left() + edge.width()}) {
            sides.emplace_back(x - reach, edge.top() + straight, 2 * reach,
                               edge.height() - 2 * straight);
        }
        return sides;
    }

    template <class Look>
    static void ForEach(const QRect& part, const Look& look) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) look(QPoint(x, y));
        }
    }

    /// In the middle of the sign.
    void FindColors(const QRect& edge) {
        thread_ = 0;
        ribbon_ = 1;
        for (const QRect& middle : Sides(edge, Pixels(1))) {
            ForEach(middle, [this](QPoint at) {
                thread_ = std::max(thread_, LuminanceOf(after_.pixel(at)));
                ribbon_ = std::min(ribbon_, LuminanceOf(after_.pixel(at)));
            });
        }
    }

    double ContrastAlong(const QRect& side) const {
        double least = 99;
        ForEach(side, [&](QPoint at) {
            const double ground = LuminanceOf(before_.pixel(at));
            least = std::min(least, std::max(Apart(thread_, ground), Apart(ribbon_, ground)));
        });
        return least;
    }

    /// Of the thinnest stretch of the side, each as long as it takes the sign to repeat.
    double ThicknessAlong(const QRect& side) const {
        const bool level = side.width() > side.height();
        std::vector<int> changed(static_cast<std::size_t>(level ? side.width() : side.height()));
        ForEach(side, [&](QPoint at) {
            if (Apart(LuminanceOf(before_.pixel(at)), LuminanceOf(after_.pixel(at))) < 3) return;
            const QPoint within = at - side.topLeft();
            ++changed.at(static_cast<std::size_t>(level ? within.x() : within.y()));
        });
        const int length = Pixels(kPitch);
        double least = 99;
        for (auto from = changed.begin(); changed.end() - from >= length; ++from) {
            least = std::min(least, std::accumulate(from, from + length, 0) / (length * scale_));
        }
        return least;
    }

    QImage before_;
    QImage after_;
    double scale_;
    double thread_ = 0;
    double ribbon_ = 1;
};

class PlaceContrastTest : public AllWindows, public ::testing::WithParamInterface<const char*> {
protected:
    PlaceContrastTest() {
        QApplication::setCursorFlashTime(0);
        global.SkinFolder = folder.path() + "\\";
        std::filesystem::create_directory_symlink(
            std::filesystem::path(QUENDREL_SKIN_FOLDER) / GetParam(),
            folder.path() + "/" + GetParam());
        folder.Write("settings.ini", "[Game]\nGameMode=2\n");
        main.Load(0);
        main.show();
        global.ElapsedSeconds = 75;
        global.ActiveRow = 4;
        global.NewScorePending = true;
        Open();
        for (QMovie* const movie : about->findChildren<QMovie*>()) movie->setPaused(true);
    }

    static void BeginKeys(QWidget& window) {
        BringToFront(&window);
        QTest::keyClick(&window, Qt::Key_F12);
    }

    /// Looks at the sign of a control, which gets the focus.
    void Look(QWidget* control) {
        QWidget* const window = control->window();
        control->setEnabled(true);
        control->setFocusPolicy(Qt::StrongFocus);
        control->setFocus();
        auto* const sign = window->findChild<QFocusFrame*>();
        const QRect part = sign->geometry().adjusted(-9, -9, 9, 9) & window->rect();
        const std::string name = GetParam() + (" " + control->objectName().toStdString());
        ASSERT_TRUE(control->hasFocus() && sign->isVisible()) << name;
        const QImage after = window->grab(part).toImage();
        sign->hide();
        const QImage before = window->grab(part).toImage();
        sign->show();
        const int reach = static_cast<int>(kReach * scale);
        const QRect edge = sign->geometry().adjusted(reach, reach, -reach, -reach);
        const Seen seen = SignPixels(before, after, scale).LookAt(edge.translated(-part.topLeft()));
        EXPECT_GE(seen.contrast, 3) << name;
        EXPECT_GE(seen.thickness, 1) << name;
        ++places;
    }

    /// A control that is not always there, at a place where it can stand.
    void LookAt(Control control, const Rect& at) {
        QWidget* const widget = Find(main, NameOf(control).c_str());
        main.Place(widget, ToQRect(at));
        main.SetVisible(control, true);
        Look(widget);
        main.SetVisible(control, false);
    }

    void LookAtMain() {
        BeginKeys(main);
        for (const auto& [array, count] : {std::pair{Controls::cmdMnuBtn, 8},
                                           {Controls::cmdModeBtn, 3},
                                           {Controls::cmdColBtn, 10},
                                           {Controls::cmdDuelBtn, 1},
                                           {Controls::cmdHideBtn, 1}}) {
            for (int i = 0; i < count; ++i) {
                for (const bool held : {true, false}) {
                    main.SetHeld({array, i}, held);
                    Look(Find(main, NameOf({array, i}).c_str()));
                }
            }
        }
        for (const Answer answer : {Answer::kYes, Answer::kNo, Answer::kOk}) {
            const Point at = layout::kInputShownAt.at(static_cast<std::size_t>(answer));
            LookAt(ButtonOf(answer),
                   {at.x, at.y, layout::kInputButton.width, layout::kInputButton.height});
        }
        for (int row = 1; row <= kMaxRows; ++row) {
            for (int column = 1; column <= kMaxColumns; ++column) {
                const Point at = PegAt(column, row);
                LookAt({Controls::lblActiveRow, column},
                       {at.x, at.y, kPegSize.width, kPegSize.height});
            }
            if (row < kMaxRows) {
                LookAt({Controls::lblCloneRow, row - 1}, RowStrip(row, kMaxColumns));
            }
        }
    }

    void LookAtTheRest() {
        for (QWidget* const window :
             std::initializer_list<QWidget*>{config.get(), high.get(), about.get()}) {
            BeginKeys(*window);
            for (QWidget* const control : window->findChildren<QWidget*>()) {
                if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible()) {
                    Look(control);
                }
            }
        }
    }

    double scale = 1;
    int places = 0;
};

/// 46 looks at buttons, 3 answers, 84 holes and 13 strips; 27 places, 3 and 3 in the others.
constexpr int kPlaces = 46 + 3 + 84 + 13 + 27 + 3 + 3;

TEST_P(PlaceContrastTest, StandsOutThreefoldWhereverItCanBe) {
    for (const int density : {1, 2}) {
        PressScaleKey(&main, density == 1 ? Qt::Key_0 : Qt::Key_Plus, 4);
        scale = density;
        ASSERT_EQ(main.width(), 655 * density);
        places = 0;
        LookAtMain();
        LookAtTheRest();
        EXPECT_EQ(places, kPlaces);
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, PlaceContrastTest,
                         ::testing::Values("Atelier", "Beacon", "Carbon", "Daylight"));

}  // namespace
}  // namespace quendrel::test
