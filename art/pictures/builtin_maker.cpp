// Makes the pictures that are built into the program: builtin_maker OUTDIR SIZE... writes
// OUTDIR/splash.png, its mask OUTDIR/splash-mask.png and the animations of the about window
// OUTDIR/agif*.gif, all at double size too in OUTDIR/2x/, and the program's icon in each of the
// given sizes, OUTDIR/icon-SIZE.png.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "builtin/Icon.h"
#include "builtin/Splash.h"
#include "kit/Animation.h"
#include "kit/Gif.h"
#include "kit/Png.h"
#include "skins/Atelier.h"

namespace {

using namespace quendrel::art;

/// The splash is the first that a player sees: its mask is sooner read than worked out from it.
void WriteSplash(const std::filesystem::path& folder, const Bitmap& splash) {
    WritePng(folder / "splash.png", splash);
    WriteGrayPng(folder / "splash-mask.png", splash::MaskOf(splash));
}

void MakeBuiltinPictures(const std::filesystem::path& folder,
                         const std::vector<std::string>& iconSizes) {
    std::filesystem::create_directories(FineFolder(folder));
    const Picture splash = splash::Draw(atelier::Atelier());
    WriteSplash(folder, splash.single);
    WriteSplash(FineFolder(folder), splash.fine);
    WriteGif(folder, "agifEmail.gif", envelope::Frames());
    WriteGif(folder, "agifHome.gif", house::Frames());
    WriteGif(folder, "agifTorch.gif", torch::Frames());
    for (const std::string& size : iconSizes) {
        const Icon icon = DrawIcon(std::stoi(size));
        WritePng(folder / ("icon-" + size + ".png"), icon.picture, &icon.coverage);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: builtin_maker OUTDIR SIZE...\n";
        return 2;
    }
    try {
        MakeBuiltinPictures(argv[1], {argv + 2, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "builtin_maker: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
