// What the player is told of an error.
#include "platform/Errors.h"

#include <new>

#include <gtest/gtest.h>

namespace quendrel::test {
namespace {

TEST(ReasonOf, AnErrorIsToldAsItSaysItself) {
    EXPECT_EQ(ReasonOf(FileError("/home/anna/Easy.hsc", "no room")),
              "/home/anna/Easy.hsc: no room");
}

TEST(ReasonOf, MemoryThatIsUsedUpIsToldInWords) {
    EXPECT_EQ(ReasonOf(std::bad_alloc()), "There is not enough memory left.");
}

}  // namespace
}  // namespace quendrel::test
