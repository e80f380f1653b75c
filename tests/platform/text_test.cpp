// Text and its code page.
#include "platform/Text.h"

#include <gtest/gtest.h>

#include "platform/AnsiText.h"
#include "platform/Errors.h"

namespace quendrel::test {
namespace {

using namespace std::string_literals;

TEST(LowerCase, ChangesAsciiLettersOnly) {
    EXPECT_EQ(LowerCase("Skin ÄÖ 12.BMP"), "skin ÄÖ 12.bmp");
}

TEST(SameWithoutCase, TellsAllButTheCaseOfAsciiLettersApart) {
    EXPECT_TRUE(SameWithoutCase("", ""));
    EXPECT_TRUE(SameWithoutCase("Skin 12.BMP", "sKIN 12.bmp"));
    EXPECT_FALSE(SameWithoutCase("Ä", "ä"));
    EXPECT_FALSE(SameWithoutCase("Skin", "Skins"));
    EXPECT_FALSE(SameWithoutCase("Skins", "Skin"));
    EXPECT_FALSE(SameWithoutCase("[", "{")) << "which lie as far apart as a letter and its capital";
}

TEST(Trimmed, DropsSpacesAndTabsAtBothEnds) {
    EXPECT_EQ(Trimmed(" \t a b \t"), "a b");
    EXPECT_EQ(Trimmed(" \t "), "");
}

TEST(OneLine, ALineBreakIsOneBlank) {
    EXPECT_EQ(OneLine("a\nb\rc\r\nd"), "a b c d");
    EXPECT_EQ(OneLine("a\u0085b\u2028c\u2029d"), "a b c d");
    EXPECT_EQ(OneLine("\n\n"), "  ");
}

TEST(OneLine, EveryOtherControlCharacterIsABlank) {
    EXPECT_EQ(OneLine("a\0b\tc\x1B\x1F\x7F"s), "a b c   ");
    EXPECT_EQ(OneLine("a\u0080b\u009Fc"), "a b c");
}

TEST(OneLine, EverythingElseStaysAsItIs) {
    EXPECT_EQ(OneLine("  [a] = b; "), "  [a] = b; ");
    EXPECT_EQ(OneLine("Ä\u00A0é€→\u2027\u2030😀"), "Ä\u00A0é€→\u2027\u2030😀");
    EXPECT_EQ(OneLine("\xFF\x80\xC2"), "\xFF\x80\xC2");
    EXPECT_EQ(OneLine("\xC2\n\xE2\x80\n"), "\xC2 \xE2\x80 ");
}

TEST(AnsiText, CharactersOfTheCodePageAreOneByteEach) {
    EXPECT_EQ(ToAnsi("Anna"), "Anna");
    EXPECT_EQ(ToAnsi("é€ŸÿŽ"), "\xE9\x80\x9F\xFF\x8E");
    EXPECT_EQ(FromAnsi("\xE9\x80\x9F\xFF\x8E"), "é€ŸÿŽ");
}

TEST(AnsiText, WhatTheCodePageDoesNotHoldBecomesAQuestionMark) {
    EXPECT_EQ(ToAnsi("a→b"), "a?b");
    EXPECT_EQ(ToAnsi("😀"), "?");
    EXPECT_EQ(ToAnsi("Ж"), "?");
    EXPECT_EQ(ToAnsi("\xC2\x80\xC2\x9F"), "??");
    EXPECT_EQ(ToAnsi("\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"), "???");
}

TEST(AnsiText, BytesThatAreNoUtf8BecomeAQuestionMarkEach) {
    EXPECT_EQ(ToAnsi("a\xFF\x80z"), "a??z");
    EXPECT_EQ(ToAnsi("a\xE2\x82"), "a??");
    EXPECT_EQ(ToAnsi("\xE2z\x82"), "?z?");
    EXPECT_EQ(ToAnsi("\xE2\x82z"), "??z");
    EXPECT_EQ(ToAnsi("\xC0\xAF"), "??");
    EXPECT_EQ(ToAnsi("\xE0\x80\x8A"), "???");
    EXPECT_EQ(ToAnsi("\xF0\x80\x80\x8A"), "????");
}

TEST(AnsiText, EveryByteSurvivesBeingReadAndWritten) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(ToAnsi(FromAnsi(all)), all);
}

TEST(ReportTrouble, SaysItsLinesWithoutWhatATerminalWouldObey) {
    testing::internal::CaptureStderr();
    ReportTrouble("Skin/\x1B[2J\xC2\x9BX\r: no skin\nSkin/\x07Été: none");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quendrel: Skin/ [2J X : no skin\nSkin/ Été: none\n");
}

}  // namespace
}  // namespace quendrel::test
