// A copy of our first skin that a test spoils, and what the check of skins says of it.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Geometry.h"
#include "SkinCopy.h"
#include "TemporaryFolder.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinCheck.h"

namespace quendrel::test {

class SpoiltSkin : public ::testing::Test {
protected:
    /// Paints a place of one of the skin's pictures, which are bitmaps of 24 bits a pixel.
    void Paint(const std::string& name, Rect place, Pixel pixel) const {
        std::string bytes = folder.Read("skin/" + name);
        const auto number = [&bytes](std::size_t at) {
            return static_cast<int>(static_cast<unsigned char>(bytes[at])) |
                   static_cast<int>(static_cast<unsigned char>(bytes[at + 1])) << 8;
        };
        const int stride = (number(18) * 3 + 3) / 4 * 4;
        const int height = number(22);
        for (int y = place.top; y < place.bottom(); ++y) {
            for (int x = place.left; x < place.right(); ++x) {
                const int offset = 54 + (height - 1 - y) * stride + 3 * x;
                const auto at = static_cast<std::size_t>(offset);
                bytes[at] = static_cast<char>(pixel & 0xFF);
                bytes[at + 1] = static_cast<char>(pixel >> 8 & 0xFF);
                bytes[at + 2] = static_cast<char>(pixel >> 16 & 0xFF);
            }
        }
        folder.Write("skin/" + name, bytes);
    }

    std::vector<std::string> Faults() { return FaultsOfSkin(reader, root); }

    /// The only fault, without the skin's folder.
    std::string OnlyFault() {
        const std::vector<std::string> faults = Faults();
        EXPECT_EQ(faults.size(), 1U);
        return faults.empty() ? "" : faults.front().substr(root.size() + 1);
    }

    TemporaryFolder folder;
    const std::string root = folder.path() + "/skin";
    const PictureReader reader = ReadPictureFile;
};

}  // namespace quendrel::test
