// The live texts of a window that is shown larger: name boxes, lists of tunes and balloons.
#include <QApplication>
#include <QFontMetricsF>
#include <QScrollBar>
#include <QTest>
#include <QtMath>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "ScaledWindows.h"
#include "settings/PlaylistEditor.h"
#include "settings/TuneListBox.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/NameBox.h"

namespace quendrel::test {
namespace {

/// What encloses the pixels that are darker than a lightness.
QRect DarkPart(const QImage& image, int lightness) {
    QRect part;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).lightness() < lightness) part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

class ScaledNameBoxTest : public ::testing::Test {
protected:
    ScaledNameBoxTest() {
        window.Place(&box, kPlace);
        Dress(window, box);
        window.ZoomTo(1);
        window.show();
    }

    static void Dress(QWidget& around, NameBox& inner) {
        around.setPalette(QPalette(Qt::white));
        inner.SetColors(Qt::black, Qt::white, Qt::transparent);
    }

    static constexpr QRect kPlace{10, 20, 200, 24};

    Zoomed window;
    NameBox box{&window, LiveFont({}, 18), AsOneLine};
};

TEST_F(ScaledNameBoxTest, ShowsItsLettersAsMuchLarger) {
    box.setText("Anna");
    const QImage single = box.grab().toImage();
    QWidget plain;
    NameBox larger(&plain, LiveFont({}, 27), AsOneLine);
    Dress(plain, larger);
    larger.setGeometry(15, 30, 300, 36);
    larger.setText("Anna");
    window.ZoomTo(1.5);
    EXPECT_EQ(box.font().pixelSize(), 27);
    EXPECT_EQ(box.grab().toImage(), larger.grab().toImage());
    window.ZoomTo(1);
    EXPECT_EQ(box.font().pixelSize(), 18);
    EXPECT_EQ(box.grab().toImage(), single);
}

TEST_F(ScaledNameBoxTest, KeepsWhatIsTypedWithCursorAndSelection) {
    QTest::keyClicks(&box, "Annabel");
    box.setSelection(2, 3);
    for (const qreal zoom : {1.5, 1.0}) {
        window.ZoomTo(zoom);
        EXPECT_EQ(box.text(), "Annabel") << zoom;
        EXPECT_EQ(box.selectedText(), "nab") << zoom;
        EXPECT_EQ(box.cursorPosition(), 5) << zoom;
        // The toolkit leaves two pixels before the text.
        const qreal before =
            QFontMetricsF(LiveFont({}, qRound(18 * zoom))).horizontalAdvance("Annab");
        const QRect cursor = box.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        EXPECT_NEAR(cursor.center().x(), 2 + before, 2) << zoom;
    }
    QTest::keyClicks(&box, "o");
    EXPECT_EQ(box.text(), "Anoel");
}

TEST_F(ScaledNameBoxTest, TakesNewLettersAtTheZoomOfItsWindow) {
    window.ZoomTo(1.5);
    box.SetLetters(LiveFont({.face = "Inter"}, 12));
    EXPECT_EQ(box.font().pixelSize(), 18);
    EXPECT_EQ(box.font().family(), "Inter");
}

class ScaledTuneListTest : public ::testing::Test {
protected:
    ScaledTuneListTest() {
        tunes.items = {"Hill", "Air", "Bourree", "Canon", "Dance", "Elegy", "Fugue", "Gigue"};
        tunes.selected = 2;
        window.Place(&box, {10, 20, 200, 138});
        window.ZoomTo(1);
        box.setFont(LiveFont({}, 18));
        box.SetColors(Qt::white, Qt::black);
        box.ShowTunes(tunes);
        window.show();
    }

    QRect Row(int row) { return box.visualItemRect(box.item(row)); }

    /// Where a name's letters stand in its row, in pixels from the row's corner.
    QRect Letters(int row) { return DarkPart(box.viewport()->grab(Row(row)).toImage(), 128); }

    /// Whether the letters stand and are as large as a zoom says, six units from the row's side.
    void ExpectLetters(qreal zoom) {
        const QRectF ink = QFontMetricsF(LiveFont({}, 18)).tightBoundingRect("Hill");
        const QRect shown = Letters(0);
        EXPECT_NEAR(shown.left(), (6 + ink.left()) * zoom, 1.5) << zoom;
        EXPECT_NEAR(shown.width(), ink.width() * zoom, 3) << zoom;
        EXPECT_NEAR(shown.height(), ink.height() * zoom, 2) << zoom;
        EXPECT_GE(shown.top(), 1) << zoom;
        EXPECT_LT(shown.bottom(), Row(0).height() - 1) << zoom;
    }

    Zoomed window;
    TuneListBox box{&window};
    TuneList tunes;
};

TEST_F(ScaledTuneListTest, ItsRowsAreAsMuchHigherWithTheirNames) {
    for (const auto& [zoom, height] :
         {std::pair{1.0, 23}, std::pair{1.5, 35}, std::pair{1.0, 23}}) {
        window.ZoomTo(zoom);
        for (int row = 0; row < 3; ++row) EXPECT_EQ(Row(row).height(), height) << zoom;
        ExpectLetters(zoom);
        EXPECT_EQ(box.currentRow(), 2);
    }
}

TEST_F(ScaledTuneListTest, TunesThatComeWhileItIsLargerHaveTheSameRows) {
    window.ZoomTo(1.5);
    tunes.items = {"Hill", "Xylophone"};
    tunes.selected = 0;
    box.ShowTunes(tunes);
    EXPECT_EQ(Row(0).height(), 35);
    EXPECT_EQ(Row(1).height(), 35);
}

TEST_F(ScaledTuneListTest, ItsScrollBarIsAsMuchWider) {
    for (const auto& [zoom, width] : {std::pair{1.0, 12}, std::pair{1.5, 18}, std::pair{1.0, 12}}) {
        window.ZoomTo(zoom);
        QCoreApplication::processEvents();
        ASSERT_TRUE(box.verticalScrollBar()->isVisible()) << zoom;
        EXPECT_EQ(box.verticalScrollBar()->width(), width) << zoom;
    }
}

TEST_F(ScaledTuneListTest, ANameIsTooLongAtEveryZoomOrAtNone) {
    tunes.items = {"Hill", std::string(24, 'm')};
    tunes.selected = 0;
    box.ShowTunes(tunes);
    for (const qreal zoom : {1.0, 1.5, 2.0}) {
        window.ZoomTo(zoom);
        EXPECT_FALSE(box.CutTuneAt(Row(0).center()).has_value()) << zoom;
        ASSERT_TRUE(box.CutTuneAt(Row(1).center()).has_value()) << zoom;
        EXPECT_EQ(box.CutTuneAt(Row(1).center())->place, Row(1)) << zoom;
    }
}

class ScaledBalloonTest : public ::testing::Test {
protected:
    static constexpr const char* kHelp = "Press here to continue.";

    ScaledBalloonTest() {
        control.setAccessibleDescription(kHelp);
        window.Place(&control, {100, 100, 40, 20});
        window.move(100, 100);
        help.Watch(&control);
        help.SwitchOn(true);
    }

    /// The balloon that comes at a zoom.
    QWidget* BalloonAt(qreal zoom) {
        window.ZoomTo(zoom);
        window.show();
        PointAt(&control, {5, 5});
        EXPECT_TRUE(BalloonSays(window, kHelp)) << zoom;
        return window.findChild<QWidget*>("popHelp");
    }

    Zoomed window;
    QWidget control{&window};
    BalloonHelp help{&window};
};

TEST_F(ScaledBalloonTest, IsAsMuchLargerBesideItsControl) {
    const QFontMetrics metrics(QApplication::font());
    const QSize text = metrics.boundingRect(QRect(0, 0, 230, 500), Qt::TextWordWrap, kHelp).size();
    const QSize units = text + QSize(20, 32);
    QRect single;
    for (const qreal zoom : {1.0, 1.5}) {
        QWidget* const balloon = BalloonAt(zoom);
        EXPECT_EQ(balloon->size(),
                  QSize(qCeil(units.width() * zoom), qCeil(units.height() * zoom)));
        const QRect place(control.mapToGlobal(QPoint(0, 0)), control.size());
        EXPECT_FALSE(balloon->geometry().intersects(place)) << zoom;
        EXPECT_LE(place.top() - balloon->geometry().bottom(), 2) << zoom;
        EXPECT_EQ(balloon->mask().boundingRect().height(), balloon->height()) << zoom;
        // The ink of its words alone is as dark.
        const QRect words = DarkPart(balloon->grab().toImage(), 50);
        if (single.isNull()) single = words;
        EXPECT_NEAR(words.left(), single.left() * zoom, 2) << zoom;
        EXPECT_NEAR(words.width(), single.width() * zoom, 10) << zoom;
        EXPECT_NEAR(words.height(), single.height() * zoom, 2) << zoom;
    }
    EXPECT_EQ(BalloonAt(1)->size(), units);
}

}  // namespace
}  // namespace quendrel::test
