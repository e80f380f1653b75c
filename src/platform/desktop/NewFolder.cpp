// New folders on a POSIX system.
#include "platform/NewFolder.h"

#include <filesystem>
#include <system_error>

#include <sys/file.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/desktop/Descriptor.h"

namespace quendrel {

namespace fs = std::filesystem;

namespace {

/// How the hidden folders' names begin.
constexpr std::string_view kHiddenName = ".new.";

/// Opens a folder, but not through a link, and locks it. -1 where another program has.
int LockFolder(const std::string& path) {
    const int number = Uninterrupted(
        [&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
    if (number >= 0 && ::flock(number, LOCK_EX | LOCK_NB) == 0) return number;
    const Descriptor notLocked(number);
    return -1;
}

void RemoveIfLeft(const fs::path& path) {
    const Descriptor lock(LockFolder(path.string()));
    std::error_code ignored;
    if (lock.number() >= 0) fs::remove_all(path, ignored);
}

/// Not every file system can flush the names in a folder.
void FlushFiles(const std::string& root) {
    std::error_code error;
    for (fs::recursive_directory_iterator entry(root, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = entry->path().string();
        if (!FlushToDisk(path) && FileExists(path)) {
            throw FileError(path, "cannot be written: " + Reason());
        }
    }
    if (error) throw FileError(root, "cannot be listed: " + error.message());
}

}  // namespace

NewFolder::Hidden::Hidden(const std::string& parent)
    : path_(parent + "/" + std::string(kHiddenName) + "XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr) {
        throw FileError(parent, "cannot be written: " + Reason());
    }
    lock_ = LockFolder(path_);
}

NewFolder::Hidden::~Hidden() {
    const Descriptor lock(lock_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

NewFolder::NewFolder(const std::string& parent, const std::string& name)
    : parent_(parent),
      place_(parent + "/" + name),
      hidden_(parent),
      path_(hidden_.path() + "/" + name) {
    std::error_code error;
    fs::create_directory(path_, error);
    if (error) throw FileError(place_, "cannot be made: " + error.message());
}

void NewFolder::Write(const std::string& name, std::string_view bytes) const {
    const fs::path path = fs::path(path_) / name;
    std::error_code shownByOpen;
    fs::create_directories(path.parent_path(), shownByOpen);
    constexpr mode_t mode = 0666;
    Descriptor file(Uninterrupted(
        [&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); }));
    if (file.number() < 0 || !file.Write(bytes) || !file.Close()) {
        throw FileError(place_ + "/" + name, "cannot be written: " + Reason());
    }
}

void NewFolder::Appear() const {
    FlushFiles(path_);
    std::error_code error;
    // A rename would take the place of an empty folder.
    if (fs::exists(fs::symlink_status(place_, error))) throw FileError(place_, "is there already");
    fs::rename(path_, place_, error);
    if (error) throw FileError(place_, "cannot be made: " + error.message());
    FlushToDisk(parent_);
}

void RemoveLeftFolders(const std::string& parent) {
    std::error_code ignored;
    for (fs::directory_iterator entry(parent, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        const fs::path& path = entry->path();
        if (path.filename().string().starts_with(kHiddenName)) RemoveIfLeft(path);
    }
}

}  // namespace quendrel
