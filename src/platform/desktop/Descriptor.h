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

/// What the system answers to a call, which is repeated where a signal has interrupted it.
template <typename Call>
auto Uninterrupted(const Call& call) {
    for (;;) {
        const auto answer = call();
        if (answer >= 0 || errno != EINTR) return answer;
    }
}

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
    /// Closed all the same where a signal has interrupted it. False where what was written may be
    /// lost.
    bool Close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

    /// False where not all could be written.
    bool Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t written =
                Uninterrupted([&] { return ::write(number_, bytes.data(), bytes.size()); });
            if (written < 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    /// To the disk.
    bool Flush() const {
        return Uninterrupted([this] { return ::fsync(number_); }) == 0;
    }

private:
    int number_;
};

/// Flushes a file, or the names in a folder, to the disk. False where that has failed.
inline bool FlushToDisk(const std::string& path) {
    const Descriptor opened(
        Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
    return opened.number() >= 0 && opened.Flush();
}

}  // namespace quendrel
