// The message panel.
#include <gtest/gtest.h>

#include "RecordingWindow.h"
#include "ui/main/MessagePanel.h"

namespace quendrel::test {
namespace {

class MessagePanelTest : public ::testing::Test {
protected:
    Log log;
    RecordingWindow window{log};
    MessagePanel panel{window};
};

TEST_F(MessagePanelTest, ShowsFourLinesInTheirColors) {
    panel.DisplayText(Grey("a"), Yellow("b"), Grey("c"), Yellow("d"));
    EXPECT_EQ(log.Text(), "text: grey \"a\" yellow \"b\" grey \"c\" yellow \"d\"\n");
    EXPECT_EQ(window.Line(1).ink, 0xEBEBEBU);
    EXPECT_EQ(window.Line(2).ink, 0xFFFF00U);
}

TEST_F(MessagePanelTest, AnEmptyTextHidesTheLineAndKeepsItsColor) {
    panel.DisplayText(Yellow("a"));
    panel.DisplayText({"", 0});
    EXPECT_EQ(window.Line(1), (MessageLine{"", kYellowInk}));
}

TEST_F(MessagePanelTest, TheEndOfALineThatIsNeverCutIsHandedOn) {
    panel.DisplayText(MessageLine{"Anna: Guess=7", kLightGreyInk, 9});
    EXPECT_EQ(window.Line(1).kept, 9U);
    EXPECT_EQ(panel.Lines()[1].kept, 9U);
}

TEST_F(MessagePanelTest, BlanksAreAText) {
    panel.DisplayText(Grey("  "));
    EXPECT_EQ(log.Text(), "text: grey \"  \" - - -\n");
}

TEST_F(MessagePanelTest, FourEmptyTextsHideThePanel) {
    panel.DisplayText(Grey("a"), Grey("b"), Grey("c"), Grey("d"));
    panel.DisplayText(MessageLine{});
    EXPECT_EQ(window.Line(4).text, "");
    EXPECT_EQ(panel.Lines()[1].text, "");
}

TEST_F(MessagePanelTest, WhatWasReadBackCanBeShownAgain) {
    panel.DisplayText(Grey("a"), Yellow("b"));
    const Message saved = panel.Lines();
    panel.DisplayText(Yellow("x"), Grey("y"), Grey("z"), Grey("w"));
    log.Clear();
    panel.DisplayText(saved);
    EXPECT_EQ(log.Text(), "text: grey \"a\" yellow \"b\" - -\n");
}

}  // namespace
}  // namespace quendrel::test
