// Makes the pictures of the skins: skin_maker [--only NAME] [--boards DIR] OUTDIR writes
// OUTDIR/<skin>/..., and with --boards also the board of each mode whole, DIR/<skin>/<mode>.bmp.
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "skins/Atelier.h"
#include "skins/AtelierWindows.h"
#include "skins/Beacon.h"
#include "skins/Carbon.h"
#include "skins/Daylight.h"
#include "skins/MainWindow.h"
#include "skins/SmallWindows.h"
#include "skins/Workshop.h"

namespace {

using namespace quendrel::art;

struct Request {
    std::string only;  ///< the one skin to make; empty for all
    std::filesystem::path boards;
    std::filesystem::path folder;
};

/// The command line, or an exception.
Request RequestOf(const std::vector<std::string>& arguments) {
    Request request;
    std::size_t next = 0;
    for (; next + 2 < arguments.size(); next += 2) {
        if (arguments[next] == "--only")
            request.only = arguments[next + 1];
        else if (arguments[next] == "--boards")
            request.boards = arguments[next + 1];
        else
            break;
    }
    if (next + 1 != arguments.size())
        throw std::invalid_argument("usage: skin_maker [--only NAME] [--boards DIR] OUTDIR");
    request.folder = arguments[next];
    return request;
}

void MakePictures(const std::string& name, const Look& look, const WindowLook& windows,
                  const Request& request) {
    const std::filesystem::path root = request.folder / name;
    const MainWindowPictures pictures(look);
    pictures.WriteSkin(root);
    WriteAboutWindow(windows, root);
    WriteHighWindow(windows, root);
    WriteConfigWindow(windows, root);
    if (!request.boards.empty()) pictures.WriteBoards(request.boards / name);
}

void MakeAtelier(const std::string& name, const Request& request) {
    const atelier::Atelier atelier;
    MakePictures(name, atelier, atelier::AtelierWindows(atelier), request);
}

/// A skin that the workshop builds.
template <class Skin>
void MakeInWorkshop(const std::string& name, const Request& request) {
    const Skin craft;
    const Workshop workshop(craft);
    MakePictures(name, workshop, workshop, request);
}

struct SkinMaker {
    std::string name;
    void (*make)(const std::string& name, const Request& request);
};

const std::vector<SkinMaker>& Skins() {
    static const std::vector<SkinMaker> skins{
        {"Atelier", MakeAtelier},
        {"Beacon", MakeInWorkshop<beacon::Beacon>},
        {"Carbon", MakeInWorkshop<carbon::Carbon>},
        {"Daylight", MakeInWorkshop<daylight::Daylight>},
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
