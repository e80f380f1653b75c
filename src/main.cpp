// Builds the machine's parts, hands them down, runs the game, and reports a fatal error.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QMessageBox>

#include "Global.h"
#include "StartUp.h"
#include "frmMain.h"
#include "platform/Errors.h"
#include "platform/Machine.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/ClockRandom.h"
#include "platform/desktop/Display.h"
#include "platform/desktop/QtClock.h"
#include "platform/desktop/QtTimers.h"
#include "platform/desktop/SdlSoundPlayer.h"
#include "settings/SettingsStore.h"
#include "ui/PictureFile.h"

namespace {

using namespace quendrel;

enum ExitCode { kEndedByPlayer = 0, kFatalError = 1, kBadCommandLine = 2 };

/// The program's own folder: --folder, $QUENDREL_FOLDER, or where the program stands.
QString ProgramFolder(const QCommandLineParser& parser) {
    if (parser.isSet("folder")) return parser.value("folder");
    const QString fromEnvironment = qEnvironmentVariable("QUENDREL_FOLDER");
    return fromEnvironment.isEmpty() ? QCoreApplication::applicationDirPath() : fromEnvironment;
}

void Play(Application& application, const QString& folder) {
    QtClock clock(application);
    QtTimers timers;
    ClockRandom random;
    SdlSoundPlayer soundPlayer;
    const Machine machine{clock, timers, random, soundPlayer};

    Global global;
    SetFolders(global, QFileInfo(folder).absoluteFilePath().toStdString());
    SettingsStore store(global, SettingsPath());
    PictureFileReader pictures;
    frmMain window(global, machine, store, pictures);
    window.Load();
    window.Run();
}

int ReportFatalError(const std::string& reason) {
    std::cerr << "quendrel: " << reason << '\n';
    QMessageBox::critical(nullptr, QString::fromUtf8(kAppName.data()),
                          QString::fromStdString(reason));
    return kFatalError;
}

}  // namespace

int main(int argc, char** argv) {
    if (!DisplayReachable()) {
        std::cerr << "quendrel: no display can be reached. Start the game from a desktop session, "
                     "or set DISPLAY to one.\n";
        return kFatalError;
    }
    Application application(argc, argv);
    QCoreApplication::setApplicationName("Quendrel");
    QCoreApplication::setApplicationVersion("1.0");

    QCommandLineParser parser;
    parser.setApplicationDescription("Quendrel, a code-breaking game with colours.");
    parser.addOption({"folder", "Take skins, sounds and tunes from <DIR>.", "DIR"});
    if (!parser.parse(QCoreApplication::arguments())) {
        std::cerr << "quendrel: " << parser.errorText().toStdString() << '\n';
        return kBadCommandLine;
    }

    try {
        Play(application, ProgramFolder(parser));
    } catch (const ProgramEnded&) {
        return kEndedByPlayer;
    } catch (const std::exception& error) {
        return ReportFatalError(error.what());
    }
    return kEndedByPlayer;
}
