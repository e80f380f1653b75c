// The scale as a player writes it.
#include <gtest/gtest.h>

#include "ViewScale.h"

namespace quendrel::test {
namespace {

TEST(ScaleOf, IsANumberFromOneToThree) {
    EXPECT_EQ(ScaleOf("1"), 1);
    EXPECT_EQ(ScaleOf("1.5"), 1.5);
    EXPECT_EQ(ScaleOf("1.27"), 1.27);
    EXPECT_EQ(ScaleOf("02.250"), 2.25);
    EXPECT_EQ(ScaleOf("3.00"), 3);
}

TEST(ScaleOf, IsNothingElse) {
    for (const char* const text : {"",      " ",
                                   ".",     "0",
                                   "0.99",  "3.01",
                                   "10",    "1,5",
                                   "1.5.5", "1 ",
                                   " 1",    "1x",
                                   "x1",    "nan",
                                   "inf",   "1e0",
                                   "0x2",   "-1",
                                   "+1",    "--2",
                                   "1.5%",  "99999999999999999999"}) {
        EXPECT_EQ(ScaleOf(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace quendrel::test
