// The skins, and tests that hold of every one of them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quendrel {

inline const std::vector<std::string> kSkins{"Atelier", "Beacon", "Carbon", "Daylight"};

/// A test of one skin: its name ends with the skin's.
class SkinTest : public testing::TestWithParam<std::string> {
protected:
    const std::filesystem::path skin_ = std::filesystem::path(QUENDREL_SKIN_FOLDER) / GetParam();
};

inline const auto kEverySkin = testing::ValuesIn(kSkins);

inline std::string SkinName(const testing::TestParamInfo<std::string>& test) { return test.param; }

}  // namespace quendrel
