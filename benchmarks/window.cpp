// Times what the main window does on a real display, and prints one "name milliseconds" a line:
// the median of several runs each. bench_window SCALE
#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <vector>

#include <QApplication>
#include <QWindow>

#include "FinishedGame.h"
#include "LeapingClock.h"
#include "SilentPlayer.h"
#include "StartUp.h"
#include "frmMain.h"
#include "platform/Machine.h"
#include "platform/desktop/ClockRandom.h"
#include "platform/desktop/OpenLink.h"
#include "platform/desktop/QtClock.h"
#include "platform/desktop/QtTray.h"
#include "settings/SettingsStore.h"
#include "ui/main/LoadMainSkin.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinFiles.h"

namespace {

using namespace quendrel;

constexpr int kRuns = 15;

double MedianMilliseconds(const std::function<void()>& work) {
    std::vector<double> times(kRuns);
    for (double& time : times) {
        const auto start = std::chrono::steady_clock::now();
        work();
        time = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                   .count();
        QCoreApplication::processEvents();
    }
    std::sort(times.begin(), times.end());
    return times.at(kRuns / 2);
}

/// Shows `window` and waits until it is on the screen.
void Show(QWidget& window, Clock& clock) {
    constexpr int kLongestWait = 1000;
    window.show();
    while (!window.windowHandle()->isExposed()) clock.PumpEvents(kLongestWait);
    clock.PumpEvents(0);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QtClock realClock;
    bench::LeapingClock clock;
    ClockRandom random;
    bench::SilentPlayer player;
    bench::SilentMidiDevice mmcMidi;
    QtTray tray;
    const Machine machine{clock, random, player, mmcMidi, tray, OpenLink};

    Global global;
    global.View.ofRun = ScaleOf(argc > 1 ? argv[1] : "");
    SetFolders(global, qEnvironmentVariable("QUENDREL_FOLDER").toStdString());
    SettingsStore store(global, SettingsPath());
    const PictureReader pictures = ReadPictureFile;
    frmMain window(global, machine, store, pictures);
    window.Load(0);
    Show(window, realClock);

    // A second table on the same window, since the window's own is private.
    Table table(global, machine, window);
    const auto load = [&] {
        const SkinTree skin = TreeOf(global, global.Settings.SkinPtr, window.Density());
        LoadMainSkin(global, ReadMainSkin(pictures, skin), window, table.board, table.rowMarker);
    };
    load();
    bench::FillBoard(global);
    table.rowMarker.StartBlinking(global.ActiveRow);
    std::cout << "LoadMainSkin " << MedianMilliseconds(load) << '\n';
    std::cout << "BuildBoard "
              << MedianMilliseconds([&] { table.board.BuildBoard(global.Settings.GameMode); })
              << '\n';
    std::cout << "RepaintAll " << MedianMilliseconds([&] { window.RepaintAll(); }) << '\n';
    std::cout << "RevealBoard " << MedianMilliseconds([&] { table.board.RevealBoard(); }) << '\n';
    return 0;
}
