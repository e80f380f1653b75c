// The live text: whole in height, cut in width where it must be, and shown whole in a balloon then.
#include <memory>

#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QRawFont>
#include <QTest>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/BoxLines.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/NameBox.h"

namespace quendrel::test {
namespace {

const QString kTallAndDeep = QString::fromUtf8("\u00c4nna \u00c5\u00e5\u00e9 \u0123 \u1ebe gjpq");

QFont Letters(int pixels, const char* face = "Yanone Kaffeesatz") {
    QFont font(face);
    font.setPixelSize(pixels);
    font.setWeight(QFont::Medium);
    return font;
}

/// Black on white, with all the room that ink may want.
QImage DrawnOnATallCanvas(const QString& text, int baseline, const QFont& font) {
    QImage canvas(300, 100, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.setFont(font);
    painter.drawText(QPointF(0, baseline), text);
    return canvas;
}

QImage DrawnOnATallCanvas(const QString& text, int baseline, int pixels = 18) {
    return DrawnOnATallCanvas(text, baseline, Letters(pixels));
}

/// A white window, a hundred pixels high.
class LiveTextTest : public ::testing::Test {
protected:
    LiveTextTest() {
        window.resize(300, 100);
        QPalette blackOnWhite(Qt::white);
        blackOnWhite.setColor(QPalette::Base, Qt::white);
        blackOnWhite.setColor(QPalette::Text, Qt::black);
        window.setPalette(blackOnWhite);
    }

    QImage Shown() { return window.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    MessageLabel* Line(const QString& text, const QRect& place = {0, 40, 300, 18},
                       const QFont& font = LiveFont({}, 18)) {
        auto* const label = new MessageLabel(&window);
        label->setFont(font);
        label->setGeometry(WholeLine(place, font));
        label->SetColor(Qt::black);
        label->setText(text);
        label->show();
        return label;
    }

    /// A line that balloon help watches, in the window that is shown.
    MessageLabel* LineWithBalloon(const QString& text) {
        auto* const help = new BalloonHelp(&window);
        MessageLabel* const label = Line(text);
        help->WatchLine(label);
        help->SwitchOn(true);
        window.show();
        return label;
    }

    /// Of the balloon that comes where the pointer rests on a control with this help.
    QSize SizeOfBalloonFor(const QString& text) {
        QWidget control(&window);
        control.setAccessibleDescription(text);
        BalloonHelp help(&window);
        help.Watch(&control);
        help.SwitchOn(true);
        window.show();
        control.show();
        PointAt(&control, {5, 5});
        EXPECT_TRUE(BalloonSays(window, text));
        const std::unique_ptr<QWidget> balloon(window.findChild<QWidget*>("popHelp"));
        return balloon->size();
    }

    QWidget window;
};

TEST_F(LiveTextTest, AccentsOnCapitalsAndDescendersAreWholeOnALineOfTheirSize) {
    Line(kTallAndDeep);
    EXPECT_EQ(Shown(), DrawnOnATallCanvas(kTallAndDeep, 54));
}

TEST_F(LiveTextTest, PlainTextStandsInTheMiddleOfItsPlace) {
    Line("Guess", {0, 20, 300, 40});
    EXPECT_EQ(Shown(), DrawnOnATallCanvas("Guess", 45));
}

TEST_F(LiveTextTest, TheDescendersOfADeeperFaceAreWholeToo) {
    Line("Ajgpqy", {0, 40, 300, 18}, LiveFont({.face = "Vollkorn"}, 18));
    EXPECT_EQ(Shown(), DrawnOnATallCanvas("Ajgpqy", 54, Letters(18, "Vollkorn")));
}

TEST_F(LiveTextTest, AStyleSaysFaceWeightSizeAndWidth) {
    Line("Guess", {0, 20, 300, 40}, LiveFont({"Inter", 600, 80, 90, {}}, 18));
    QFont expected = Letters(14, "Inter");
    expected.setWeight(QFont::DemiBold);
    expected.setStretch(90);
    EXPECT_EQ(Shown(), DrawnOnATallCanvas("Guess", 45, expected));
}

TEST_F(LiveTextTest, LettersThatAreTallerThanTheLineAreDrawnSmaller) {
    const QString tallest = QString::fromUtf8("\u1eb4nna");
    Line(tallest);
    EXPECT_NE(Shown(), DrawnOnATallCanvas(tallest, 54, 18));
    EXPECT_EQ(Shown(), DrawnOnATallCanvas(tallest, 54, 16));
}

TEST_F(LiveTextTest, LettersThatTheFontLacksComeFromTheSystemsWholeToo) {
    const QString greek = QString::fromUtf8("\u038f\u03bc\u03ad\u03b3\u03b1");
    ASSERT_FALSE(QRawFont::fromFont(Letters(18)).supportsCharacter(greek[3]));
    Line(greek);
    EXPECT_NE(Shown(), DrawnOnATallCanvas("", 54));
    EXPECT_EQ(Shown(), DrawnOnATallCanvas(greek, 54));
}

TEST_F(LiveTextTest, ATextThatIsTooLongIsCutButForTheEndThatIsKept) {
    const QString name(60, 'm');
    MessageLabel* const label = Line(name);
    const auto with = [&](const QString& end) {
        label->ShowText(name + end, end.size());
        return Shown();
    };
    const QImage seven = with(": Guess=7");
    EXPECT_NE(with(": Guess=8"), seven);
    EXPECT_EQ(label->text(), name + ": Guess=8");
    // The end stands at the right edge, to the last pixel of its last letter.
    EXPECT_NE(with(": Guess=7").copy(293, 40, 7, 20),
              DrawnOnATallCanvas("", 54).copy(293, 40, 7, 20));
}

TEST_F(LiveTextTest, NamesAreNoMarkup) {
    EXPECT_EQ(Line("<b>Bold</b>")->textFormat(), Qt::PlainText);
    EXPECT_EQ(Shown(), DrawnOnATallCanvas("<b>Bold</b>", 54));
}

TEST_F(LiveTextTest, ATextThatIsTooLongIsShownWholeInABalloon) {
    const QString name = QString("<i>") + QString(60, 'm');
    PointAt(LineWithBalloon(name), {5, 5});
    EXPECT_TRUE(BalloonSays(window, name));
}

TEST_F(LiveTextTest, ABalloonFollowsATextThatChangesAndGoesWithOneThatFits) {
    const QString name(60, 'm');
    MessageLabel* const label = LineWithBalloon(name);
    PointAt(label, {5, 5});
    ASSERT_TRUE(BalloonSays(window, name));
    const auto* const balloon = window.findChild<QWidget*>("popHelp");
    label->setText(name + "n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return balloon->accessibleName() == name + "n"; }, 1000));
    EXPECT_TRUE(balloon->isVisible());
    label->setText("Anna");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !balloon->isVisible(); }, 1000));
}

TEST_F(LiveTextTest, ABalloonBreaksItsTextBetweenWordsAndOneLongWordAnywhere) {
    // Two in a line would be too wide for the balloon, whose lines are 230 pixels.
    QString word;
    while (QFontMetrics(QApplication::font()).horizontalAdvance(word) < 140) word += 'm';
    const int line = QFontMetrics(QApplication::font()).lineSpacing();
    const QSize words = SizeOfBalloonFor(word + ' ' + word + ' ' + word);
    EXPECT_GE(words.height(), 3 * line);
    const QSize oneWord = SizeOfBalloonFor(word + word + word);
    EXPECT_LE(oneWord.width(), 260);
    EXPECT_GE(oneWord.height(), 2 * line);
    EXPECT_EQ(words.height() - oneWord.height(), line);
}

TEST_F(LiveTextTest, ATextThatFitsHasNoBalloonNorHasAnyWithHelpSwitchedOff) {
    auto* const help = new BalloonHelp(&window);
    MessageLabel* const fits = Line("Anna");
    MessageLabel* const tooLong = Line(QString(60, 'm'), {0, 70, 300, 18});
    help->WatchLine(fits);
    help->WatchLine(tooLong);
    help->SwitchOn(true);
    window.show();
    PointAt(fits, {5, 5});
    EXPECT_FALSE(BalloonSays(window, "Anna"));
    help->SwitchOn(false);
    PointAt(tooLong, {5, 5});
    EXPECT_FALSE(BalloonSays(window, tooLong->text()));
}

/// A name box of eighteen pixels on the white window, as high as its letters need. The toolkit
/// leaves two pixels before the text.
class NameBoxTest : public LiveTextTest {
protected:
    static constexpr QRect kPlace{-2, 40, 300, 23};
    static constexpr int kBaseline = 58;

    NameBoxTest() {
        box.setGeometry(kPlace);
        box.SetColors(Qt::black, Qt::white, Qt::transparent);
    }

    void FocusOnAWindowThatIsShown() {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }

    NameBox box{&window, LiveFont({}, 18), AsOneLine};
};

TEST_F(NameBoxTest, ShowsAccentsOnCapitalsAndDescendersAsALabelDoes) {
    box.setText(kTallAndDeep);
    EXPECT_EQ(Shown(), DrawnOnATallCanvas(kTallAndDeep, kBaseline));
}

TEST_F(NameBoxTest, ShowsLettersThatAreTallerThanItselfSmaller) {
    const QString tallest = QString::fromUtf8("\u1eb4nna");
    box.setText(tallest);
    EXPECT_EQ(Shown(), DrawnOnATallCanvas(tallest, kBaseline, 16));
}

TEST_F(NameBoxTest, ShowsWhatIsSelectedAsWholeAsTheRest) {
    box.setText(kTallAndDeep + "Bert");
    box.setSelection(0, static_cast<int>(kTallAndDeep.size()));
    QImage expected = DrawnOnATallCanvas(kTallAndDeep + "Bert", kBaseline);
    const int width = QFontMetrics(Letters(18)).horizontalAdvance(kTallAndDeep);
    QPainter painter(&expected);
    painter.setClipRect(0, 40, width, 23);
    painter.fillRect(0, 40, width, 23, Qt::black);
    painter.setPen(Qt::white);
    painter.setFont(Letters(18));
    painter.drawText(QPointF(0, kBaseline), kTallAndDeep + "Bert");
    painter.end();
    EXPECT_EQ(Shown(), expected);
}

TEST_F(NameBoxTest, ShowsWhatAnInputMethodComposesWholeWithALineBelow) {
    box.setText("Ana");
    box.setCursorPosition(2);
    QInputMethodEvent composing(QString::fromUtf8("\u1eb4"), {});
    QApplication::sendEvent(&box, &composing);
    const QImage plain = DrawnOnATallCanvas(QString::fromUtf8("An\u1eb4a"), kBaseline, 16);
    EXPECT_EQ(Shown().copy(0, 0, 300, kBaseline), plain.copy(0, 0, 300, kBaseline));
    EXPECT_NE(Shown(), plain);
    EXPECT_EQ(box.text(), "Ana");
}

TEST_F(NameBoxTest, ScrollsALongNameToItsCursorEvenWhileAllIsSelected) {
    box.setText(QString(60, 'm'));
    box.setCursorPosition(0);
    Shown();
    box.selectAll();
    EXPECT_EQ(Shown().pixelColor(290, 42), QColor(Qt::black));
    EXPECT_EQ(Shown().pixelColor(297, 42), QColor(Qt::white));
}

TEST_F(NameBoxTest, ItsCursorBlinksWhileItHasTheFocus) {
    FocusOnAWindowThatIsShown();
    const auto cursorShows = [&] { return Shown().pixelColor(0, 52) == QColor(Qt::black); };
    EXPECT_TRUE(cursorShows());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !cursorShows(); }));
    EXPECT_TRUE(QTest::qWaitFor(cursorShows));
    box.clearFocus();
    EXPECT_FALSE(QTest::qWaitFor(cursorShows, 1500));
}

class BoxLinesTest : public ::testing::Test {
protected:
    /// How high the label of a box with three lines is, in lines, and whether they fit into it.
    void ExpectThreeLines(int room) {
        QMessageBox box(QMessageBox::Critical, "Title",
                        "The minimum screen requirements for playing Quendrel v1.0\n"
                        "is 800x600 16bit. But to get the best gaming experience i\n"
                        "recomend that you play it in 1024x768 24bit...",
                        QMessageBox::Ok);
        KeepLines(box, room);
        box.show();
        const auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
        EXPECT_LT(label->heightForWidth(label->width()), 4 * label->fontMetrics().lineSpacing());
        EXPECT_LE(box.width(), room);
    }
};

TEST_F(BoxLinesTest, StandAsTheyAreWrittenOnASmallScreen) { ExpectThreeLines(640); }

TEST_F(BoxLinesTest, StandInSmallerLettersWhereTheDesktopIsScaled) {
    ExpectThreeLines(400);
    ExpectThreeLines(320);
}

}  // namespace
}  // namespace quendrel::test
