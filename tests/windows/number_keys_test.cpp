// Which number a key is, by its place on the keyboard.
#include <optional>
#include <vector>

#include <QKeyEvent>
#include <gtest/gtest.h>

#include "platform/desktop/NumberKeys.h"

namespace quendrel::test {
namespace {

/// The number of a key that stands at a place of the keyboard, as X counts them.
std::optional<int> NumberAt(quint32 place, Qt::Key types, Qt::KeyboardModifiers held = {}) {
    return NumberOf(QKeyEvent(QEvent::KeyPress, types, held, place, 0, 0));
}

TEST(NumberKeysTest, TheRowCountsByThePlaceOfItsKeysWhateverTheyType) {
    const std::vector<Qt::Key> french{Qt::Key_Ampersand,  Qt::Key_Eacute,     Qt::Key_QuoteDbl,
                                      Qt::Key_Apostrophe, Qt::Key_ParenLeft,  Qt::Key_Minus,
                                      Qt::Key_Egrave,     Qt::Key_Underscore, Qt::Key_Ccedilla,
                                      Qt::Key_Agrave};
    for (int number = 1; number <= 10; ++number) {
        const auto place = static_cast<quint32>(number + 9);
        EXPECT_EQ(NumberAt(place, french.at(static_cast<std::size_t>(number - 1))), number);
    }
    EXPECT_EQ(NumberAt(10, Qt::Key_Exclam, Qt::ShiftModifier), 1);
    EXPECT_EQ(NumberAt(20, Qt::Key_Minus), std::nullopt);
    EXPECT_EQ(NumberAt(9, Qt::Key_Escape), std::nullopt);
}

TEST(NumberKeysTest, TheKeypadCountsByItsDigitsWhichShiftDoesNotTakeAway) {
    EXPECT_EQ(NumberAt(87, Qt::Key_1, Qt::KeypadModifier), 1);
    EXPECT_EQ(NumberAt(90, Qt::Key_0, Qt::KeypadModifier), 10);
    EXPECT_EQ(NumberAt(87, Qt::Key_End, Qt::KeypadModifier), std::nullopt);
    const std::vector<quint32> pad{87, 88, 89, 83, 84, 85, 79, 80, 81, 90};
    for (std::size_t i = 0; i < pad.size(); ++i) {
        EXPECT_EQ(NumberAt(pad[i], Qt::Key_Down, Qt::KeypadModifier | Qt::ShiftModifier), i + 1);
    }
}

TEST(NumberKeysTest, WithoutAPlaceADigitIsItsNumber) {
    EXPECT_EQ(NumberAt(0, Qt::Key_1), 1);
    EXPECT_EQ(NumberAt(0, Qt::Key_9), 9);
    EXPECT_EQ(NumberAt(0, Qt::Key_0), 10);
    EXPECT_EQ(NumberAt(0, Qt::Key_A), std::nullopt);
    EXPECT_EQ(NumberAt(0, Qt::Key_Slash), std::nullopt);
}

}  // namespace
}  // namespace quendrel::test
