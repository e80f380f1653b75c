// A picture reader that pretends to have a whole skin, and writes down what is asked of it.
#pragma once

#include <map>
#include <string>

#include "Log.h"
#include "TestSkin.h"
#include "platform/Errors.h"
#include "ui/Picture.h"

namespace quendrel::test {

class RecordingPictureReader : public PictureReader {
public:
    explicit RecordingPictureReader(Log& log) : log_(log) {}

    /// The path that cannot be read.
    std::string missing;

    Picture Read(const std::string& path) override {
        log_.Add("read " + path);
        if (path == missing) throw FileError(path, "No such file or directory");
        const BoardSkin skin = TestSkin();
        const std::map<std::string, Picture> pictures{
            {"Colors.bmp", skin.picColors},   {"Coloranim.bmp", skin.picColorAnim},
            {"Numbers.bmp", skin.picNumbers}, {"Dots.bmp", skin.picDots},
            {"Modes.bmp", skin.picModes},     {"Board.bmp", skin.easyBoard}};
        const auto found = pictures.find(path.substr(path.rfind('/') + 1));
        return found != pictures.end() ? found->second : Picture(4, 3);
    }

private:
    Log& log_;
};

}  // namespace quendrel::test
