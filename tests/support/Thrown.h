// What becomes of what is thrown where the toolkit calls the program.
#pragma once

#include <exception>
#include <functional>
#include <stdexcept>
#include <string>

#include <QTest>

#include "platform/Doors.h"

namespace quendrel::test {

/// A deed that goes wrong.
[[noreturn]] inline void Fail() { throw std::runtime_error("it went wrong"); }

/// What is kept for the event pump within two seconds of the toolkit's `knock`. Nothing may come
/// out of the toolkit itself.
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
