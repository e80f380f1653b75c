// Files on a POSIX system.
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Errors.h"
#include "platform/Text.h"
#include "platform/desktop/Descriptor.h"

namespace quendrel {

namespace fs = std::filesystem;

namespace {

/// How many letters end the name of a temporary file, and which they may be.
constexpr std::size_t kLetters = 6;
constexpr std::string_view kAnyLetter =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

/// By the clock, which never fails.
std::string RandomLetters() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    std::mt19937_64 generator(static_cast<std::uint64_t>(now));
    std::uniform_int_distribution<std::size_t> any(0, kAnyLetter.size() - 1);
    std::string letters(kLetters, ' ');
    for (char& letter : letters) letter = kAnyLetter[any(generator)];
    return letters;
}

/// How the names of the temporary files of a target begin, beside which they lie, hidden. A long
/// name is cut at what leaves room for the rest.
std::string StartOfTemporaries(const fs::path& target) {
    constexpr std::size_t kLongestName = 255;
    constexpr std::string_view kMark = ".new.";
    const std::size_t room = kLongestName - 1 - kMark.size() - kLetters;
    return "." + target.filename().string().substr(0, room) + std::string(kMark);
}

/// A temporary file that is removed unless it has been renamed into its place. It is made with
/// `mode`, of which the player's mask is taken.
class TemporaryFile {
public:
    TemporaryFile(const fs::path& target, mode_t mode) : file_(Make(target, mode)) {
        if (file_.number() < 0) throw FileError(target.string(), "cannot be written: " + Reason());
    }
    ~TemporaryFile() {
        if (!path_.empty()) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool SetMode(mode_t mode) const { return ::fchmod(file_.number(), mode) == 0; }

    bool Write(std::string_view bytes) const { return file_.Write(bytes) && file_.Flush(); }

    bool RenameTo(const std::string& target) {
        if (!file_.Close() || ::rename(path_.c_str(), target.c_str()) != 0) return false;
        path_.clear();
        return true;
    }

private:
    /// Under a name that nothing has yet.
    int Make(const fs::path& target, mode_t mode) {
        for (;;) {
            const std::string name = StartOfTemporaries(target) + RandomLetters();
            path_ = (target.parent_path() / name).string();
            const int number = Uninterrupted(
                [&] { return ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode); });
            if (number >= 0 || errno != EEXIST) return number;
        }
    }

    std::string path_;
    Descriptor file_;
};

/// The permissions of the file at `path`; none where nothing is there.
std::optional<mode_t> ModeOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return status.st_mode & 07777;
}

/// Throws unless there is a plain file at `path` that may be written, or nothing at all. A file
/// that its owner may not write counts as read-only for root too, who could write it.
void RequireChangeable(const std::string& path, const std::string& trouble) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) return;
        throw FileError(path, trouble + Reason());
    }
    if (!S_ISREG(status.st_mode)) throw FileError(path, trouble + "it is no plain file");
    if ((status.st_mode & S_IWUSR) == 0 || ::access(path.c_str(), W_OK) != 0) {
        throw FileError(path, trouble + "it is read-only");
    }
}

/// Opens a file for reading. Throws FileError where that cannot be done or it is no plain file.
Descriptor OpenPlainFile(const std::string& path) {
    // Without O_NONBLOCK opening a pipe would wait until somebody writes to it.
    const int number =
        Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); });
    if (number < 0) throw FileError(path, "cannot be opened: " + Reason());
    struct stat status {};
    if (::fstat(number, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(number);
        throw FileError(path, "cannot be read: it is no plain file");
    }
    return Descriptor(number);
}

/// Reads up to `count` bytes; 0 at the end of the file.
std::size_t ReadSome(const Descriptor& file, char* to, std::size_t count, const std::string& path) {
    const ssize_t got = Uninterrupted([&] { return ::read(file.number(), to, count); });
    if (got < 0) throw FileError(path, "cannot be read: " + Reason());
    return static_cast<std::size_t>(got);
}

/// The path that a chain of symbolic links at `path` ends at, whether or not anything is there.
fs::path EndOfLinks(const std::string& path) {
    fs::path end(path);
    std::error_code noLink;
    for (fs::path next = fs::read_symlink(end, noLink); !noLink;
         next = fs::read_symlink(end, noLink)) {
        end = end.parent_path() / next;
    }
    return end;
}

/// Calls `visit` with each entry of a folder, until all are visited or reading fails with `error`.
template <typename Visit>
void ForEachEntry(const fs::path& folder, std::error_code& error, const Visit& visit) {
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        visit(*entry);
    }
}

bool IsTemporary(const std::string& name, const std::string& start) {
    return name.size() == start.size() + kLetters && name.starts_with(start) &&
           name.find_first_not_of(kAnyLetter, start.size()) == std::string::npos;
}

/// A young one may be another program's, which is saving at this moment.
bool IsOldFile(const fs::directory_entry& entry) {
    constexpr std::chrono::hours kOld{1};
    std::error_code unknown;
    const bool isFile = entry.symlink_status(unknown).type() == fs::file_type::regular;
    const fs::file_time_type written = entry.last_write_time(unknown);
    return isFile && !unknown && fs::file_time_type::clock::now() - written > kOld;
}

/// Removes the temporary files of a target that were never renamed.
void RemoveWhatKilledSavesLeft(const fs::path& target) {
    const fs::path folder = target.parent_path();
    const std::string start = StartOfTemporaries(target);
    std::vector<fs::path> left;
    std::error_code ignored;
    ForEachEntry(folder.empty() ? "." : folder, ignored, [&](const fs::directory_entry& entry) {
        const fs::path& path = entry.path();
        if (IsTemporary(path.filename().string(), start) && IsOldFile(entry)) left.push_back(path);
    });
    for (const fs::path& path : left) fs::remove(path, ignored);
}

/// The entry of `folder` that equals `name` without regard to case; the first by name where
/// several do, and `name` itself where none does.
std::string FindEntry(const fs::path& folder, const std::string& name) {
    std::string found;
    std::error_code ignored;
    ForEachEntry(folder.empty() ? "." : folder, ignored, [&](const fs::directory_entry& entry) {
        const std::string candidate = entry.path().filename().string();
        if (SameWithoutCase(candidate, name) && (found.empty() || candidate < found)) {
            found = candidate;
        }
    });
    return found.empty() ? name : found;
}

/// Where a name leads: the path, and the end of the name that fits nothing there.
struct Lead {
    fs::path path;
    std::string_view rest;
};

/// What the next name may be, as far as that is there: the one that ends at the first backslash, or
/// a longer one, of which the backslash is a letter.
std::vector<Lead> Steps(const Lead& lead) {
    std::vector<Lead> steps;
    const std::string_view name = lead.rest;
    for (std::size_t begin = 0;;) {
        const std::size_t end = std::min(name.find_first_of("\\/", begin), name.size());
        const std::string one(name.substr(0, end));
        std::error_code ignored;
        fs::path to = lead.path / one;
        if (begin == 0 && !one.empty() && !fs::exists(to, ignored)) {
            to = lead.path / FindEntry(lead.path, one);
        }
        if (one.empty() || fs::exists(to, ignored)) {
            steps.push_back({to, name.substr(std::min(end + 1, name.size()))});
        }
        if (end == name.size() || name[end] == '/') return steps;
        begin = end + 1;
    }
}

/// How many parts a name may have. To follow one of thousands takes minutes, since each backslash
/// might be a letter.
constexpr std::ptrdiff_t kMostBackslashes = 64;

bool CanBeFollowed(std::string_view name) {
    return std::count(name.begin(), name.end(), '\\') <= kMostBackslashes;
}

/// Goes as far as a name leads; of several ways equally far, the one with the shortest names.
Lead Follow(const fs::path& from, std::string_view name) {
    std::vector<Lead> untried{{from, name}};
    Lead farthest = untried.front();
    while (!untried.empty() && !farthest.rest.empty()) {
        const Lead lead = untried.back();
        untried.pop_back();
        if (lead.rest.size() < farthest.rest.size()) farthest = lead;
        if (lead.rest.empty()) break;
        const std::vector<Lead> steps = Steps(lead);
        untried.insert(untried.end(), steps.rbegin(), steps.rend());
    }
    return farthest;
}

bool IsListed(const std::string& name) { return !name.starts_with('.') && !LeadsElsewhere(name); }

/// The names of the entries of a folder that are of a kind, sorted without regard to case.
std::vector<std::string> ListEntries(const std::string& path, fs::file_type kind) {
    std::error_code error;
    std::vector<std::string> names;
    ForEachEntry(path, error, [&](const fs::directory_entry& entry) {
        std::error_code ignored;
        const std::string name = entry.path().filename().string();
        if (IsListed(name) && entry.status(ignored).type() == kind) names.push_back(name);
    });
    if (error) throw FileError(path, "cannot be listed: " + error.message());

    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

}  // namespace

std::string MachinePath(std::string_view name) {
    const bool fromRoot = name.starts_with('/');
    Lead lead{"", name};
    if (CanBeFollowed(name)) lead = Follow(fromRoot ? "/" : "", name.substr(fromRoot ? 1 : 0));
    if (lead.rest.empty()) return lead.path.string();
    std::string slashed(lead.rest);
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    return (lead.path / slashed).string();
}

std::string AbsolutePath(const std::string& path) {
    std::error_code unknown;
    const fs::path absolute = fs::absolute(path, unknown).lexically_normal();
    if (unknown) return path;
    return (absolute.has_filename() ? absolute : absolute.parent_path()).string();
}

bool PathExists(const std::string& path) {
    std::error_code unknown;
    return fs::exists(path, unknown) || unknown;
}

bool FileExists(const std::string& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

bool FolderExists(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

std::string ReadFile(const std::string& path) {
    const Descriptor file = OpenPlainFile(path);
    std::string bytes;
    std::array<char, 1 << 16> buffer{};
    for (;;) {
        const std::size_t count = ReadSome(file, buffer.data(), buffer.size(), path);
        if (count == 0) return bytes;
        bytes.append(buffer.data(), count);
    }
}

FileStart ReadFileStart(const std::string& path, std::size_t count) {
    const Descriptor file = OpenPlainFile(path);
    FileStart start;
    start.bytes.resize(count);
    std::size_t got = 0;
    while (got < count) {
        const std::size_t more = ReadSome(file, start.bytes.data() + got, count - got, path);
        if (more == 0) break;
        got += more;
    }
    start.bytes.resize(got);
    std::error_code unknown;
    start.length = fs::file_size(path, unknown);
    return start;
}

void WriteFileAtomically(const std::string& path, std::string_view bytes) {
    RequireChangeable(path, "cannot be written: ");
    const fs::path end = EndOfLinks(path);
    const std::string target = end.string();

    RemoveWhatKilledSavesLeft(end);
    const std::optional<mode_t> mode = ModeOf(target);
    TemporaryFile temporary(end, mode.value_or(0666));
    if ((mode && !temporary.SetMode(*mode)) || !temporary.Write(bytes) ||
        !temporary.RenameTo(target)) {
        throw FileError(path, "cannot be written: " + Reason());
    }
    // The file is in place, whether or not the file system can flush its name.
    FlushToDisk(end.parent_path().string());
}

void WriteFileKeepingTail(const std::string& path, std::string_view bytes) {
    std::string whole(bytes);
    if (FileExists(path)) {
        const std::string old = ReadFile(path);
        if (old.size() > whole.size()) whole += old.substr(whole.size());
    }
    WriteFileAtomically(path, whole);
}

void RemoveFile(const std::string& path) {
    const std::string trouble = "cannot be deleted: ";
    RequireChangeable(path, trouble);
    if (::unlink(path.c_str()) != 0 && errno != ENOENT) throw FileError(path, trouble + Reason());
}

void MakeFolders(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) throw FileError(path, "cannot be made: " + error.message());
}

std::vector<std::string> ListFolders(const std::string& path) {
    return ListEntries(path, fs::file_type::directory);
}

std::vector<std::string> ListFiles(const std::string& path) {
    return ListEntries(path, fs::file_type::regular);
}

}  // namespace quendrel
