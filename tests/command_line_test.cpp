// What the program is asked to do by the words behind its name.
#include <gtest/gtest.h>

#include "CommandLine.h"

namespace quendrel::test {
namespace {

CommandLine Read(std::vector<std::string> words) {
    words.insert(words.begin(), "quendrel");
    return ReadCommandLine(words);
}

std::string ComplaintOf(const std::vector<std::string>& words) { return Read(words).complaint; }

TEST(CommandLine, WithoutAWordItAsksForAGame) {
    const CommandLine asked = Read({});
    EXPECT_EQ(asked.request, Request::kPlay);
    EXPECT_EQ(asked.complaint, "");
    EXPECT_EQ(asked.folder, "");
    EXPECT_FALSE(asked.scale);
}

TEST(CommandLine, TheFolderAndTheScaleOfAGameMayBeGiven) {
    const CommandLine asked = Read({"--folder", "My games", "--scale=1.5"});
    EXPECT_EQ(asked.request, Request::kPlay);
    EXPECT_EQ(asked.complaint, "");
    EXPECT_EQ(asked.folder, "My games");
    EXPECT_EQ(asked.scale, 1.5);
}

TEST(CommandLine, OfAnOptionThatStandsTwiceTheLastCounts) {
    const CommandLine asked = Read({"--folder=one", "--scale", "2", "--folder=two", "--scale=3"});
    EXPECT_EQ(asked.folder, "two");
    EXPECT_EQ(asked.scale, 3);
}

TEST(CommandLine, AFolderMayHaveAnyBytes) {
    EXPECT_EQ(Read({"--folder=\xFF\x80\n\xC3\xA9"}).folder, "\xFF\x80\n\xC3\xA9");
}

TEST(CommandLine, ASkinIsChecked) {
    const CommandLine asked = Read({"--check-skin", "Skin/Mine"});
    EXPECT_EQ(asked.request, Request::kCheckSkin);
    EXPECT_EQ(asked.complaint, "");
    EXPECT_EQ(asked.skin, "Skin/Mine");
}

TEST(CommandLine, TheHelpGoesBeforeAllElse) {
    EXPECT_EQ(Read({"--version", "--help", "--check-skin=a", "--scale=9"}).request,
              Request::kSayHelp);
    EXPECT_EQ(Read({"--folder=a", "--version", "b"}).request, Request::kSayVersion);
    EXPECT_EQ(Read({"--help", "b"}).complaint, "");
}

TEST(CommandLine, WhatIsNotUnderstoodIsRefusedWithWords) {
    EXPECT_EQ(ComplaintOf({"game", "now"}), "Unexpected: game now.");
    EXPECT_EQ(ComplaintOf({"--frobnicate"}), "Unknown option 'frobnicate'.");
    EXPECT_EQ(ComplaintOf({"--folder"}), "Missing value after '--folder'.");
    EXPECT_EQ(ComplaintOf({"--help=me"}), "Unexpected value after '--help'.");
    EXPECT_EQ(ComplaintOf({"--folder="}), "--folder names no folder.");
    EXPECT_EQ(ComplaintOf({"--check-skin", ""}), "--check-skin names no folder.");
    for (const std::string scale : {"0.9", "3.1", "1,5", "", "1e0", "two"}) {
        EXPECT_EQ(ComplaintOf({"--scale", scale}),
                  '"' + scale + "\" is no scale; it is a number from 1 to 3, as 1.5.");
    }
}

}  // namespace
}  // namespace quendrel::test
