// The outline of a shown window, which the desktop cuts or the toolkit, and two screens.
#include <cmath>

#include <gtest/gtest.h>

#include "Balloon.h"
#include "ScaledWindows.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel::test {
namespace {

constexpr Size kUnits{40, 32};

/// How far a point lies outside a disc in the middle of the window, in units; negative within it.
double OutsideDisc(double x, double y) {
    constexpr double radius = 12;
    return std::hypot(x - kUnits.width / 2.0, y - kUnits.height / 2.0) - radius;
}

Picture MaskOfDisc(int density) {
    Picture mask(kUnits.width * density, kUnits.height * density, kCutWhite);
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            if (OutsideDisc((x + 0.5) / density, (y + 0.5) / density) < 0) mask.Set(x, y, 0);
        }
    }
    return mask;
}

/// The two masks differ by more than their size, to be told apart.
OutlineMasks TwoMasks() {
    return {MaskOf(kUnits, 1, {4, 2, 20, 10}), MaskOf(kUnits, 2, {9, 5, 40, 19})};
}

class Shaped : public SkinnedWindow {
public:
    Shaped(ViewScale& wanted, const OutlineMasks& masks) : SkinnedWindow("shaped", wanted) {
        SetFace(face_);
        ShapeFrom(masks);
    }

    int Density() const { return DensityWanted(); }
    int timesAsked = 0;

private:
    void FollowDensity() override { ++timesAsked; }

    Picture face_{kUnits.width, kUnits.height, 0x806040};
};

class WindowEdgesTest : public ::testing::Test {
protected:
    WindowEdgesTest() {
        edges.blends = [this] { return blends; };
    }

    void LetTheDesktopCut() {
        edges.cut = [this](WId, const QRegion& region) {
            cut = region;
            return true;
        };
    }

    void Show(Shaped& window) const {
        window.SetEdges(edges);
        window.move(50, 50);
        window.show();
    }

    /// Whether all within the disc is opaque and all outside it transparent, but for a narrow edge;
    /// returns how many pixels are neither.
    static int PartlyCovered(Shaped& window, double scale) {
        const QImage opacity = PaintedBy(window).convertToFormat(QImage::Format_Alpha8);
        int partly = 0;
        for (int y = 0; y < opacity.height(); ++y) {
            for (int x = 0; x < opacity.width(); ++x) {
                const int alpha = opacity.constScanLine(y)[x];
                const double outside = OutsideDisc((x + 0.5) / scale, (y + 0.5) / scale);
                if (alpha > 0 && alpha < 255) ++partly;
                if (std::abs(outside) > 2) {
                    EXPECT_EQ(alpha, outside > 0 ? 0 : 255) << x << ", " << y;
                }
            }
        }
        return partly;
    }

    ViewScale wanted;
    WindowEdges edges;
    bool blends = false;
    QRegion cut;
};

// The device's pixels 7 to 36 of 60 have their centres in 9 to 48 of the doubled mask's 80.
TEST_F(WindowEdgesTest, TheDesktopCutsByTheMaskOfThePixelsThatAreShown) {
    LetTheDesktopCut();
    Shaped window(wanted, TwoMasks());
    Show(window);
    EXPECT_EQ(cut, QRegion(4, 2, 20, 10));
    PressScaleKey(&window, Qt::Key_Plus, 2);
    EXPECT_EQ(cut, QRegion(7, 4, 30, 14));
    PressScaleKey(&window, Qt::Key_Plus, 2);
    EXPECT_EQ(cut, QRegion(9, 5, 40, 19));
    PressScaleKey(&window, Qt::Key_0);
    EXPECT_EQ(cut, QRegion(4, 2, 20, 10));
    EXPECT_TRUE(window.mask().isEmpty());
}

TEST_F(WindowEdgesTest, ASkinWithOneMaskIsCutByItAtEveryScale) {
    LetTheDesktopCut();
    wanted.ofRun = 2;
    Shaped window(wanted, {MaskOf(kUnits, 1, {4, 2, 20, 10}), {}});
    Show(window);
    EXPECT_EQ(cut, QRegion(8, 4, 40, 20));
}

TEST_F(WindowEdgesTest, WhereTheDesktopDoesNotCutTheToolkitsMaskHolds) {
    Shaped window(wanted, TwoMasks());
    Show(window);
    EXPECT_EQ(window.mask(), QRegion(4, 2, 20, 10));
    PressScaleKey(&window, Qt::Key_Plus, 2);
    EXPECT_EQ(window.mask(), QRegion(7, 4, 30, 14));
}

// Of the toolkit's pixels, which are two by two of the device's, each that belongs in part is kept.
TEST_F(WindowEdgesTest, TheToolkitsMaskIsOfItsOwnPixels) {
    Shaped window(wanted, TwoMasks());
    window.SetEdges(edges);
    window.move(2050, 50);
    window.show();
    EXPECT_EQ(window.mask(), QRegion(4, 2, 21, 10));
}

TEST_F(WindowEdgesTest, ItsEdgeIsSmoothWhereTheDesktopBlendsAndHardWhereItDoesNot) {
    LetTheDesktopCut();
    Shaped window(wanted, {MaskOfDisc(1), MaskOfDisc(2)});
    Show(window);
    for (const double scale : {1.0, 1.5, 2.0}) {
        EXPECT_EQ(PartlyCovered(window, scale), 0) << scale;
        blends = true;
        SkinnedWindow::CutAllOutlines();
        // The circle is 75 units long.
        EXPECT_GT(PartlyCovered(window, scale), 50 * scale) << scale;
        blends = false;
        SkinnedWindow::CutAllOutlines();
        EXPECT_EQ(PartlyCovered(window, scale), 0) << scale;
        PressScaleKey(&window, Qt::Key_Plus, 2);
    }
}

TEST_F(WindowEdgesTest, AWindowIsCutForEdgesThatItGetsWhileItIsShown) {
    Shaped window(wanted, TwoMasks());
    window.show();
    LetTheDesktopCut();
    window.SetEdges(edges);
    EXPECT_EQ(cut, QRegion(4, 2, 20, 10));
}

/// By its own shape, which has round corners.
TEST_F(WindowEdgesTest, ABalloonIsCutByWhoCutsItsWindow) {
    constexpr QSize corner(2, 2);
    LetTheDesktopCut();
    Shaped window(wanted, TwoMasks());
    QWidget control(&window);
    control.setAccessibleDescription("Press here to continue.");
    BalloonHelp help(&window);
    help.Watch(&control);
    help.SwitchOn(true);
    Show(window);
    window.move(2050, 50);
    PointAt(&control, {5, 5});
    ASSERT_TRUE(BalloonSays(window, "Press here to continue."));
    const auto* const balloon = window.findChild<QWidget*>("popHelp");
    const QRect whole({0, 0}, balloon->size() * 2);
    EXPECT_EQ(cut.boundingRect(), whole);
    EXPECT_FALSE(cut.intersects(QRect(whole.topLeft(), corner)));
    EXPECT_TRUE(balloon->mask().isEmpty());
    // The pointer is left on the first screen, as it was found.
    window.move(50, 50);
    PointAt(&control, {5, 5});
}

TEST_F(WindowEdgesTest, AWindowThatGoesToAnotherScreenFollowsItsScale) {
    LetTheDesktopCut();
    Shaped window(wanted, TwoMasks());
    Show(window);
    window.move(2050, 50);
    ASSERT_EQ(window.devicePixelRatioF(), 2);
    EXPECT_EQ(window.size(), QSize(40, 32));
    EXPECT_EQ(window.Density(), 2);
    EXPECT_EQ(cut, QRegion(9, 5, 40, 19));
    EXPECT_GT(window.timesAsked, 0);
    window.move(50, 50);
    ASSERT_EQ(window.devicePixelRatioF(), 1);
    EXPECT_EQ(window.size(), QSize(40, 32));
    EXPECT_EQ(window.Density(), 1);
    EXPECT_EQ(cut, QRegion(4, 2, 20, 10));
}

TEST_F(WindowEdgesTest, AScaleThatIsChosenIsTheSameOnEveryScreen) {
    LetTheDesktopCut();
    wanted.chosen = 1.5;
    Shaped window(wanted, TwoMasks());
    Show(window);
    EXPECT_EQ(window.size(), QSize(60, 48));
    EXPECT_EQ(window.Zoom(), 1.5);
    window.move(2050, 50);
    ASSERT_EQ(window.devicePixelRatioF(), 2);
    EXPECT_EQ(window.size(), QSize(30, 24));
    EXPECT_EQ(window.Zoom(), 0.75);
    EXPECT_EQ(window.Density(), 2);
    EXPECT_EQ(cut, QRegion(7, 4, 30, 14));
}

}  // namespace
}  // namespace quendrel::test
