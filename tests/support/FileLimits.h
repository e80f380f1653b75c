// Conditions under which writing a file fails.
#pragma once

#include <csignal>

#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quendrel::test {

/// While it lives, no file may grow past a size, so that a write fails as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        EXPECT_NE(signal(SIGXFSZ, SIG_IGN), SIG_ERR);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

/// While it lives, files are opened with the rights of an ordinary user, also in tests that root
/// runs.
class OrdinaryUser {
public:
    OrdinaryUser() {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0) setfsuid(nobody);
    }
    ~OrdinaryUser() { setfsuid(geteuid()); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

}  // namespace quendrel::test
