#include "platform/desktop/OpeningOfDisplay.h"

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <QString>
#include <QtGlobal>

#include "platform/Errors.h"
#include "platform/desktop/Display.h"

namespace quendrel {

namespace {

/// By which the toolkit is told.
constexpr const char* kPlatform = "QT_QPA_PLATFORM";

/// What the toolkit has said while it opened the display.
std::vector<std::pair<QtMsgType, QString>> heldBack;

/// The toolkit aborts after a fatal message.
void Hold(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtFatalMsg) {
        heldBack.emplace_back(type, text);
        return;
    }
    if (OnlyXIsAskedFor()) {
        ReportTrouble("the toolkit cannot use the display. " +
                      text.section('\n', 0, 0).toStdString());
    } else {
        ReportTrouble("no display can be reached by \"" + PlatformAskedFor() +
                      "\", which QT_QPA_PLATFORM asks for.");
    }
    std::_Exit(1);
}

}  // namespace

OpeningOfDisplay::OpeningOfDisplay() {
    if (qEnvironmentVariableIsSet(kPlatform)) asked_ = qgetenv(kPlatform).toStdString();
    qputenv(kPlatform, PlatformAskedFor().c_str());
    qInstallMessageHandler(Hold);
}

void OpeningOfDisplay::Succeeded() const {
    if (asked_) {
        qputenv(kPlatform, asked_->c_str());
    } else {
        qunsetenv(kPlatform);
    }
    qInstallMessageHandler(nullptr);
    for (const auto& [type, text] : std::exchange(heldBack, {})) {
        qt_message_output(type, {}, text);
    }
}

}  // namespace quendrel
