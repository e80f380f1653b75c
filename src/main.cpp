// Makes the clock, the devices and the settings' store, runs the game with them, and reports a
// fatal error.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QMessageBox>
#include <QThreadPool>

#include "CommandLine.h"
#include "Global.h"
#include "StartUp.h"
#include "frmMain.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Machine.h"
#include "platform/SoundRest.h"
#include "platform/desktop/ClockRandom.h"
#include "platform/desktop/Display.h"
#include "platform/desktop/EndSignals.h"
#include "platform/desktop/OnlyGame.h"
#include "platform/desktop/OpenLink.h"
#include "platform/desktop/OpeningOfDisplay.h"
#include "platform/desktop/PlayersFolder.h"
#include "platform/desktop/PlayersInput.h"
#include "platform/desktop/QtClock.h"
#include "platform/desktop/QtTray.h"
#include "platform/desktop/SdlMidiDevice.h"
#include "platform/desktop/SdlSoundDevice.h"
#include "platform/desktop/SdlSoundPlayer.h"
#include "platform/desktop/SpareMemory.h"
#include "platform/desktop/Surroundings.h"
#include "settings/SettingsStore.h"
#include "ui/main/CheckScreen.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinCheck.h"
#include "ui/windows/ProgramIcon.h"
#include "ui/windows/Screens.h"

namespace {

using namespace quendrel;

/// How long the splash is shown: four seconds, but builds for tests set less.
constexpr std::int16_t kSplashMs = QUENDREL_SPLASH_MS;

/// What a game takes from its start to its end, at the size that it is drawn in.
constexpr std::size_t kMegabytesToPlayWith = 128;

enum class ExitCode : std::uint8_t {
    kEndedByPlayer = 0,
    kFatalError = 1,
    kBadCommandLine = 2,
    kScreenTooSmall = 3,
};
using enum ExitCode;

constexpr const char* kHelp =
    "Usage: quendrel [options]\n"
    "Quendrel, a code-breaking game with colours. Where it is running already, with the\n"
    "same DIR and settings, the running game comes to the front.\n"
    "\n"
    "Options:\n"
    "  --folder DIR  take skins, sounds and tunes from DIR, and keep scores and playlist\n"
    "                there; otherwise in $QUENDREL_FOLDER, or in $XDG_DATA_HOME/quendrel\n"
    "                (~/.local/share/quendrel), beside links to what is installed\n"
    "  --scale NUMBER\n"
    "                show the windows NUMBER times as large as they are drawn, 1 to 3\n"
    "                (1.5, say), in this run; Ctrl and +, - or 0 change it while playing\n"
    "  --check-skin DIR\n"
    "                list what is missing from the skin in DIR, or wrong with it, and end\n"
    "  --help        show this help and end\n"
    "  --version     show the version and end\n"
    "\n"
    "Keys:\n"
    "  1 to 9, 0     put the colour of that number into the marked hole; with Shift, switch\n"
    "                the colour off or on again\n"
    "  Left, Right, Home, End\n"
    "                mark another hole; Space puts the chosen colour into it\n"
    "  Delete, Backspace\n"
    "                empty a hole; Shift and Delete empty the row\n"
    "  Enter         press the marked button, or else Ok or Check\n"
    "  Up, Down, Enter\n"
    "                choose the row to clone\n"
    "  Y, N, Escape  say Yes or No\n"
    "  S, K, C, W    Start, Check, Clone, Show\n"
    "  H, F, A, E    High, Config, About, Exit\n"
    "  I, M          hide the game, reset the Mind Duel\n"
    "  Ctrl and 1, 2, 3\n"
    "                Easy, Medium, Hard\n"
    "  Ctrl and V    take a skin that was copied in the file manager\n"
    "  T             say the game clock to a screen reader\n"
    "  F1            show the rules\n";

/// The program's own folder: the one that is asked for, by --folder or $QUENDREL_FOLDER, or the
/// player's.
std::string ProgramFolder(const std::string& named) {
    const std::string asked = named.empty() ? qgetenv("QUENDREL_FOLDER").toStdString() : named;
    return FolderToPlayIn(asked.empty() ? asked : AbsolutePath(asked), FolderOfProgram());
}

ExitCode Play(QApplication& application, const std::string& folder, std::optional<double> scale) {
    OnlyGame game(folder, SettingsPath());
    if (!game.Claim()) return kEndedByPlayer;

    QtClock clock;
    ClockRandom random;
    SdlSoundDevice soundDevice;
    SoundRest soundRest(clock, soundDevice);
    const PlayersInput input(application, [&soundRest] { soundRest.Wake(); });
    SdlSoundPlayer soundPlayer(soundRest);
    SdlMidiDevice mmcMidi(soundRest);
    QtTray tray;
    const Machine machine{clock, random, soundPlayer, mmcMidi, tray, OpenLink};

    Global global;
    global.View.ofRun = scale;
    SetFolders(global, folder);
    SettingsStore store(global, SettingsPath());
    const PictureReader pictures = ReadPictureFile;
    frmMain window(global, machine, store, pictures);
    game.onSecondStart = [&window] {
        if (window.IsLeaving()) return false;
        window.ComeToFront();
        return true;
    };
    ExitCode ended = kEndedByPlayer;
    EndSignals endSignals(application, [&window, &ended] {
        if (!window.EndAtOnce()) ended = kFatalError;
    });
    try {
        window.Load(kSplashMs);
        window.Run();
    } catch (const ProgramEnded&) {
        endSignals.NothingIsLeft(static_cast<int>(ended));
        return ended;
    } catch (const std::bad_alloc&) {
        window.EndAtOnce();  // saves what leaving saves
        throw;
    }
}

ExitCode ReportFatalError(const std::string& reason) {
    ReportTrouble(reason);
    QMessageBox box(QMessageBox::Critical, QString::fromUtf8(kAppName.data()),
                    QString::fromStdString(reason), QMessageBox::Ok);
    box.setWindowIcon(ProgramIcon());
    KeepOnScreens(box);
    box.setTextFormat(Qt::PlainText);  // file names and stored values, which are no markup
    box.exec();
    return kFatalError;
}

/// Does what --check-skin asks for; needs no display.
ExitCode CheckSkin(const std::string& folder) {
    if (!FolderExists(folder)) {
        std::cout << folder << ": is no folder\n";
        return kFatalError;
    }
    const PictureReader pictures = ReadPictureFile;
    const std::vector<std::string> faults = FaultsOfSkin(pictures, folder);
    for (const std::string& fault : faults) std::cout << fault << '\n';
    if (faults.empty()) std::cout << folder << ": complete\n";
    return faults.empty() ? kEndedByPlayer : kFatalError;
}

/// The toolkit has threads paint large pictures, and ends those that rest. It waits for ever where
/// the system gives it no new one: so it has one only, and keeps that.
void KeepThreadThatPaints() {
    QThreadPool& threads = *QThreadPool::globalInstance();
    threads.setMaxThreadCount(1);
    threads.setExpiryTimeout(-1);
    threads.start([] {});
}

ExitCode PlayUntilTheEnd(int& argc, char** argv, const CommandLine& asked) {
    if (const int files = FilesAtOnceWhereTooFew(); files > 0) {
        ReportTrouble("only " + std::to_string(files) +
                      " files may be open at once, which are too few to play with.");
        return kFatalError;
    }
    if (!MemoryIsLeft(kMegabytesToPlayWith)) {
        ReportTrouble("less than " + std::to_string(kMegabytesToPlayWith) +
                      " megabytes of memory are left, which are too few to play with.");
        return kFatalError;
    }
    if (!DisplayReachable()) {
        std::cerr << "quendrel: no display can be reached. Start the game from a desktop session, "
                     "or set DISPLAY to one.\n";
        return kFatalError;
    }
    const OpeningOfDisplay opening;
    QApplication application(argc, argv);
    opening.Succeeded();
    KeepThreadThatPaints();
    QCoreApplication::setApplicationName("Quendrel");
    QGuiApplication::setDesktopFileName("quendrel");
    QGuiApplication::setQuitOnLastWindowClosed(false);
    try {
        return Play(application, ProgramFolder(asked.folder), asked.scale);
    } catch (const ScreenTooSmall&) {
        return kScreenTooSmall;
    } catch (const std::exception& error) {
        return ReportFatalError(ReasonOf(error));
    }
}

ExitCode DoWhatIsAsked(int& argc, char** argv) {
    const CommandLine asked = ReadCommandLine({argv, argv + argc});
    if (!asked.complaint.empty()) {
        ReportTrouble(asked.complaint + " Try --help.");
        return kBadCommandLine;
    }
    switch (asked.request) {
        case Request::kSayHelp:
            std::cout << kHelp;
            return kEndedByPlayer;
        case Request::kSayVersion:
            std::cout << kAppName << '\n';
            return kEndedByPlayer;
        case Request::kCheckSkin:
            return CheckSkin(asked.skin);
        case Request::kPlay:
            return PlayUntilTheEnd(argc, argv, asked);
    }
    return kFatalError;
}

}  // namespace

int main(int argc, char** argv) {
    HaveOneHeap();
    PrepareSurroundings();
    try {
        return static_cast<int>(DoWhatIsAsked(argc, argv));
    } catch (const std::exception& error) {
        ReportTrouble(ReasonOf(error));
        return static_cast<int>(kFatalError);
    }
}
