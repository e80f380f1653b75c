// sound_maker OUTDIR: makes the eleven sound effects of the game, the same to the bit every time.
#include <exception>
#include <filesystem>
#include <iostream>

#include "Sounds.h"
#include "WaveFile.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: sound_maker OUTDIR\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        for (const quendrel::sounds::Sound& sound : quendrel::sounds::AllSounds()) {
            quendrel::sounds::WriteWave(quendrel::sounds::Make(sound), folder / sound.name);
        }
    } catch (const std::exception& error) {
        std::cerr << "sound_maker: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
