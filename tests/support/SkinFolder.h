// A picture reader that pretends to have a whole skin, and writes down what is asked of it.
#pragma once

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Log.h"
#include "TestSkin.h"
#include "platform/Errors.h"
#include "ui/picture/Picture.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel::test {

class RecordingPictureReader {
public:
    explicit RecordingPictureReader(Log& log) : log_(log) {}

    /// The path that cannot be read.
    std::string missing;
    /// Pictures that are black and of these sizes, by their paths.
    std::map<std::string, Size> black;

    Picture Read(const std::string& path) {
        log_.Add("read " + path);
        if (path == missing) throw FileError(path, "No such file or directory");
        const auto found = black.find(path);
        if (found != black.end()) return {found->second.width, found->second.height};
        const std::size_t second = path.find("/2x/");
        return second == std::string::npos ? Single(path) : OfSecondTree(path.substr(second));
    }

    operator PictureReader() {
        return [this](const std::string& path) { return Read(path); };
    }

private:
    static const Picture& OfSecondTree(const std::string& path) {
        static std::map<std::string, Picture> doubled;
        const auto known = doubled.find(path);
        if (known != doubled.end()) return known->second;
        return doubled[path] = Doubled(Single(path));
    }

    static Picture Single(const std::string& path) {
        static const BoardSkin skin = TestSkin();
        static const std::map<std::string, Picture> pictures{
            {"Colors.bmp", skin.picColors},   {"Coloranim.bmp", skin.picColorAnim},
            {"Numbers.bmp", skin.picNumbers}, {"Dots.bmp", skin.picDots},
            {"Modes.bmp", skin.picModes},     {"Board.bmp", skin.easyBoard}};
        const auto picture = pictures.find(path.substr(path.rfind('/') + 1));
        if (picture != pictures.end()) return picture->second;
        const Size size = SizeOf(path);
        return {size.width, size.height};
    }

    static Size SizeOf(const std::string& path) {
        static const std::vector<std::pair<std::string, Size>> files = AllSkinFiles();
        std::string wanted = path;
        std::replace(wanted.begin(), wanted.end(), '/', '\\');
        for (const auto& [name, size] : files) {
            if (wanted.ends_with(name)) return size;
        }
        throw std::logic_error("no file of a skin: " + path);
    }

    Log& log_;
};

}  // namespace quendrel::test
