// Checks that an exception thrown where the toolkit calls the program reaches the event pump.
#pragma once

#include <exception>
#include <functional>
#include <stdexcept>
#include <string>

#include <QTest>

#include "platform/Doors.h"

namespace quendrel::test {

/// Throws what ThrownAfter is to find.
[[noreturn]] inline void Fail() { throw std::runtime_error("it went wrong"); }

/// The text of the exception that is kept for the event pump within two seconds of `knock`, which
/// makes the toolkit call the program. `knock` itself must not throw.
inline std::string ThrownAfter(const std::function<void()>& knock) {
    try {
        knock();
        for (int look = 0; look < 100; ++look) {
            try {
                ThrowKept();
            } catch (const std::exception& error) {
                return error.what();
            }
            QTest::qWait(20);
        }
    } catch (...) {
        return "thrown into the toolkit";
    }
    return "nothing";
}

}  // namespace quendrel::test
