// Makes the pictures of the skins: skin_maker [--only NAME] [--boards DIR] [--pieces DIR] OUTDIR
// writes OUTDIR/<skin>/..., and with --boards also the board of each mode whole,
// DIR/<skin>/<mode>.bmp, all of them at double size below OUTDIR/<skin>/2x/ and DIR/<skin>/2x/ too;
// with --pieces each peg and mark of the last skin alone, DIR/<name>.png.
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "skins/Atelier.h"
#include "skins/Beacon.h"
#include "skins/Carbon.h"
#include "skins/Daylight.h"
#include "skins/MainWindow.h"
#include "skins/SmallWindows.h"

namespace {

using namespace quendrel::art;

struct Request {
    /// The one skin to make; empty for all.
    std::string only;
    std::filesystem::path boards;
    std::filesystem::path pieces;
    std::filesystem::path folder;
};

/// The command line, or an exception.
Request RequestOf(const std::vector<std::string>& arguments) {
    Request request;
    std::size_t next = 0;
    for (; next + 2 < arguments.size(); next += 2) {
        if (arguments[next] == "--only") {
            request.only = arguments[next + 1];
        } else if (arguments[next] == "--boards") {
            request.boards = arguments[next + 1];
        } else if (arguments[next] == "--pieces") {
            request.pieces = arguments[next + 1];
        } else {
            break;
        }
    }
    if (next + 1 != arguments.size()) {
        throw std::invalid_argument(
            "usage: skin_maker [--only NAME] [--boards DIR] [--pieces DIR] OUTDIR");
    }
    request.folder = arguments[next];
    return request;
}

template <class Skin>
void MakePictures(const std::string& name, const Request& request) {
    const Skin craft;
    const std::filesystem::path root = request.folder / name;
    const MainWindowPictures pictures(craft);
    pictures.WriteSkin(root);
    WriteSmallWindows(craft, root);
    if (!request.boards.empty()) pictures.WriteBoards(request.boards / name);
    if (!request.pieces.empty()) pictures.WritePieces(request.pieces);
}

struct SkinMaker {
    std::string name;
    void (*make)(const std::string& name, const Request& request);
};

const std::vector<SkinMaker>& Skins() {
    static const std::vector<SkinMaker> skins{
        {"Atelier", MakePictures<atelier::Atelier>},
        {"Beacon", MakePictures<beacon::Beacon>},
        {"Carbon", MakePictures<carbon::Carbon>},
        {"Daylight", MakePictures<daylight::Daylight>},
    };
    return skins;
}

void MakeSkins(const Request& request) {
    bool made = false;
    for (const SkinMaker& skin : Skins()) {
        if (!request.only.empty() && skin.name != request.only) continue;
        skin.make(skin.name, request);
        made = true;
    }
    if (!made) throw std::invalid_argument("there is no skin " + request.only);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        MakeSkins(RequestOf({argv + 1, argv + argc}));
    } catch (const std::invalid_argument& error) {
        std::cerr << error.what() << '\n';
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "skin_maker: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
