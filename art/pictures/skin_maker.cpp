// Makes the pictures of every skin: skin_maker [--boards DIR] OUTDIR writes OUTDIR/<skin>/..., and
// with --boards also the board of each mode whole, DIR/<skin>/<mode>.bmp.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "Atelier.h"
#include "AtelierWindows.h"
#include "MainWindow.h"
#include "SmallWindows.h"

namespace {

using namespace quendrel::art;

void MakeSkin(const std::string& name, const Look& look, const WindowLook& windows,
              const std::filesystem::path& folder, const std::filesystem::path& boards) {
    const MainWindowPictures pictures(look);
    pictures.WriteSkin(folder / name);
    WriteAboutWindow(windows, folder / name);
    WriteHighWindow(windows, folder / name);
    if (!boards.empty()) pictures.WriteBoards(boards / name);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    std::filesystem::path boards;
    if (arguments.size() == 3 && arguments[0] == "--boards") {
        boards = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (arguments.size() != 1) {
        std::cerr << "usage: skin_maker [--boards DIR] OUTDIR\n";
        return 2;
    }
    try {
        const Atelier atelier;
        MakeSkin("Atelier", atelier, AtelierWindows(atelier), arguments[0], boards);
    } catch (const std::exception& error) {
        std::cerr << "skin_maker: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
