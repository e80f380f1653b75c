// The toolkit's application, with what an event's handler throws kept out of its event loop.
#pragma once

#include <exception>

#include <QApplication>

namespace quendrel {

class Application : public QApplication {
public:
    Application(int& argc, char** argv) : QApplication(argc, argv) {}

    /// Delivers one event; what its handler throws is kept for RethrowPending.
    bool notify(QObject* receiver, QEvent* event) override;

    /// Throws what the handlers have thrown since the last call, the first of it.
    void RethrowPending();

private:
    std::exception_ptr pending_;
};

}  // namespace quendrel
