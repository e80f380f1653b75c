#include "ui/main/CheckScreen.h"

#include "Global.h"

namespace quendrel {

void CheckScreen(const ScreenSize& screen) {
    if (screen.width >= 800 && screen.height >= 600 && screen.depth >= 16) return;

    const std::string name(kAppName);
    throw ScreenTooSmall{name + " System Request",
                         "The minimum screen requirements for playing " + name +
                             "\nis 800x600 16bit. But to get the best gaming experience i"
                             "\nrecomend that you play it in 1024x768 24bit..."};
}

}  // namespace quendrel
