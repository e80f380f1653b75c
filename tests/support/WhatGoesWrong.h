// What is said of a file that cannot be read, written or understood.
#pragma once

#include <string>

#include "platform/Errors.h"

namespace quendrel::test {

/// What the FileError says that `action` throws.
template <typename Action>
std::string WhatGoesWrong(Action&& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.what();
    }
    return "nothing";
}

}  // namespace quendrel::test
