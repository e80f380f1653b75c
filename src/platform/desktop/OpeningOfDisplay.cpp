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

/// What the toolkit has said while it opened the display.
std::vector<std::pair<QtMsgType, QString>> heldBack;

/// The toolkit aborts after a fatal message.
void Hold(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtFatalMsg) {
        heldBack.emplace_back(type, text);
        return;
    }
    const std::string platform = PlatformOfDisplay();
    if (platform == "xcb") {
        ReportTrouble("the toolkit cannot use the display. " +
                      text.section('\n', 0, 0).toStdString());
    } else {
        ReportTrouble("no display can be reached by \"" + platform +
                      "\", which QT_QPA_PLATFORM asks for.");
    }
    std::_Exit(1);
}

}  // namespace

OpeningOfDisplay::OpeningOfDisplay() {
    qputenv("QT_QPA_PLATFORM", PlatformOfDisplay().c_str());
    qInstallMessageHandler(Hold);
}

void OpeningOfDisplay::Succeeded() {
    qInstallMessageHandler(nullptr);
    for (const auto& [type, text] : std::exchange(heldBack, {})) {
        qt_message_output(type, {}, text);
    }
}

}  // namespace quendrel
