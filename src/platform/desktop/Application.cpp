// The toolkit's application.
#include "platform/desktop/Application.h"

#include <utility>

namespace quendrel {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!pending_) pending_ = std::current_exception();
        return true;
    }
}

void Application::RethrowPending() {
    if (pending_) std::rethrow_exception(std::exchange(pending_, nullptr));
}

}  // namespace quendrel
