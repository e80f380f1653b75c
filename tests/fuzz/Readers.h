// The readers of what comes from outside, each tried with any bytes. A function reads them, and
// looks whether the reader keeps its promises; one stands in a file of its own.
#pragma once

#include <string_view>

namespace quendrel::fuzz {

void Arguments(std::string_view bytes);
void Bitmap(std::string_view bytes);
void CodePage(std::string_view bytes);
void Fonts(std::string_view bytes);
void Gift(std::string_view bytes);
void Highscores(std::string_view bytes);
void Ini(std::string_view bytes);
void Midi(std::string_view bytes);
void Names(std::string_view bytes);
void Playlist(std::string_view bytes);
void Settings(std::string_view bytes);
void Skin(std::string_view bytes);
void Tunes(std::string_view bytes);

}  // namespace quendrel::fuzz
