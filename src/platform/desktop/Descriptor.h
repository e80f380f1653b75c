// An open file of a POSIX system.
#pragma once

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace quendrel {

/// Why the last call of the system has failed.
inline std::string Reason() { return std::strerror(errno); }

/// Closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    int Close() { return ::close(std::exchange(number_, -1)); }

    /// False where not all could be written.
    bool Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t written = ::write(number_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

private:
    int number_;
};

/// Flushes a file, or the names in a folder, to the disk. False where that has failed.
inline bool FlushToDisk(const std::string& path) {
    const Descriptor opened(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return opened.number() >= 0 && ::fsync(opened.number()) == 0;
}

}  // namespace quendrel
