// New folders among the files in memory.
#include <filesystem>

#include "MemoryFiles.h"
#include "Promise.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/NewFolder.h"

namespace quendrel {

namespace {

void RemoveFolder(const std::string& path) {
    std::erase_if(fuzz::Files(),
                  [&path](const auto& file) { return file.first.starts_with(path + "/"); });
}

}  // namespace

NewFolder::Hidden::Hidden(const std::string& parent) : path_(parent + "/.new"), lock_(0) {}

NewFolder::Hidden::~Hidden() {
    if (lock_ >= 0) RemoveFolder(path_);
}

NewFolder::NewFolder(const std::string& parent, const std::string& name)
    : parent_(parent),
      place_(parent + "/" + name),
      hidden_(parent),
      path_(hidden_.path() + "/" + name) {
    fuzz::Promise(std::filesystem::path(place_).lexically_normal() == place_ &&
                      name.find('/') == std::string::npos && !name.empty(),
                  "a new folder stands where it belongs");
}

void NewFolder::Write(const std::string& name, std::string_view bytes) const {
    const std::string path = path_ + "/" + name;
    fuzz::Promise(std::filesystem::path(path).lexically_normal() == path && !name.empty(),
                  "a new file stands in its folder");
    if (PathExists(path)) throw FileError(path, "cannot be written: it is there");
    fuzz::Files()[path] = bytes;
}

void NewFolder::Appear() const {
    for (const auto& [path, bytes] : std::map(fuzz::Files())) {
        if (path.starts_with(path_ + "/")) {
            fuzz::Files()[place_ + path.substr(path_.size())] = bytes;
        }
    }
}

void RemoveLeftFolders(const std::string& parent) { RemoveFolder(parent + "/.new"); }

}  // namespace quendrel
