// A part of a window that is shown at once.
#include <string>

#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

#include "ScaledWindows.h"
#include "ui/controls/QtValues.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel::test {
namespace {

constexpr Size kFace{60, 40};
constexpr Rect kPart{20, 10, 12, 9};
constexpr Pixel kBefore = 0x806040;
constexpr Pixel kAfter = 0x20A0F0;

/// A window whose paintings are counted.
class Counted : public SkinnedWindow {
public:
    Counted(ViewScale& wanted, int density)
        : SkinnedWindow("counted", wanted),
          face_(kFace.width * density, kFace.height * density, kBefore) {
        face_.SetDensity(density);
        SetFace(face_);
    }

    void ShapeFrom(const OutlineMasks& masks) { SkinnedWindow::ShapeFrom(masks); }

    void Show() {
        show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(this));
        QCoreApplication::processEvents();
    }

    /// Changes the colour of a part, shows it at once, and returns how often the window was painted
    /// for that.
    int Change(const Rect& units) {
        paintings_ = 0;
        const int pixels = face_.density();
        for (int y = units.top * pixels; y < units.bottom() * pixels; ++y) {
            for (int x = units.left * pixels; x < units.right() * pixels; ++x) {
                face_.Set(x, y, kAfter);
            }
        }
        RepaintNow({units.left, units.top, units.width, units.height});
        return paintings_;
    }

private:
    void paintEvent(QPaintEvent* event) override {
        ++paintings_;
        SkinnedWindow::paintEvent(event);
    }

    Picture face_;
    int paintings_ = 0;
};

/// The window after the change of the part, with so many pixels a unit.
QImage Changed(double scale) {
    QImage image(qRound(kFace.width * scale), qRound(kFace.height * scale), QImage::Format_RGB32);
    image.fill(kBefore);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.fillRect(ToQRect(kPart), QColor::fromRgb(kAfter));
    return image;
}

class ShownPartTest : public ::testing::Test {
protected:
    ViewScale wanted;
};

TEST_F(ShownPartTest, IsCopiedWithoutAPaintingWherePixelLiesOnPixel) {
    for (const int scale : {1, 2}) {
        wanted.ofRun = scale;
        Counted window(wanted, scale);
        window.Show();
        EXPECT_EQ(window.Change(kPart), 0) << scale;
        ExpectSame(OnScreen(window), Changed(scale), std::to_string(scale));
    }
}

TEST_F(ShownPartTest, IsPaintedWhereThePictureHasNotTheScreensPixels) {
    wanted.ofRun = 2;
    Counted window(wanted, 1);
    window.Show();
    EXPECT_EQ(window.Change(kPart), 1);
    ExpectSame(OnScreen(window), Changed(2), "single picture");
}

TEST_F(ShownPartTest, KeepsTheControlsThatLieOverIt) {
    constexpr QRect place(28, 5, 10, 10);
    Counted window(wanted, 1);
    QWidget control(&window);
    control.setGeometry(place);
    control.setAutoFillBackground(true);
    control.setPalette(QColor(Qt::yellow));
    const QColor ground = control.palette().color(QPalette::Window);
    window.Show();
    EXPECT_EQ(window.Change(kPart), 1);
    QImage expected = Changed(1);
    QPainter(&expected).fillRect(place, ground);
    ExpectSame(OnScreen(window), expected, "control");

    control.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.Change(kPart), 0);
    ExpectSame(OnScreen(window), Changed(1), "hidden control");
}

TEST_F(ShownPartTest, IsCutByTheOutline) {
    constexpr Rect kept{4, 4, 22, 30};
    Counted window(wanted, 1);
    window.ShapeFrom({MaskOf(kFace, 1, kept), {}});
    window.SetEdges({[](WId, const QRegion&) { return true; }});
    window.Show();
    EXPECT_EQ(window.Change(kPart), 1);
    QImage expected(kFace.width, kFace.height, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter(&expected).drawImage(QPoint(kept.left, kept.top), Changed(1), ToQRect(kept));
    ExpectSame(OnScreen(window), expected, "cut");
}

}  // namespace
}  // namespace quendrel::test
