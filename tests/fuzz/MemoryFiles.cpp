#include "MemoryFiles.h"

#include <algorithm>
#include <set>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace quendrel {

namespace fuzz {

namespace {

/// Those that were made without a file in them.
std::set<std::string>& MadeFolders() {
    static std::set<std::string> folders;
    return folders;
}

}  // namespace

std::map<std::string, std::string>& Files() {
    static std::map<std::string, std::string> files;
    return files;
}

void RemoveAllFiles() {
    Files().clear();
    MadeFolders().clear();
}

}  // namespace fuzz

namespace {

std::string Slashed(std::string_view name) {
    std::string path(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string WithSlash(const std::string& folder) {
    return folder.ends_with('/') ? folder : folder + "/";
}

/// The first part of each path that goes on behind `folder`, and whether the path ends with it.
template <typename Visit>
void ForEachNameIn(const std::string& folder, const Visit& visit) {
    const std::string prefix = WithSlash(folder);
    for (auto file = fuzz::Files().lower_bound(prefix);
         file != fuzz::Files().end() && file->first.starts_with(prefix); ++file) {
        const std::string rest = file->first.substr(prefix.size());
        visit(rest.substr(0, rest.find('/')), rest.find('/') == std::string::npos);
    }
}

std::vector<std::string> Listed(const std::string& folder, bool files) {
    if (!FolderExists(folder)) throw FileError(folder, "cannot be listed: it is not there");
    std::vector<std::string> names;
    ForEachNameIn(folder, [&](const std::string& name, bool isFile) {
        const bool isListed = !name.starts_with('.') && !LeadsElsewhere(name);
        if (isFile == files && isListed && (names.empty() || names.back() != name)) {
            names.push_back(name);
        }
    });
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

}  // namespace

std::string MachinePath(std::string_view name) {
    std::string path = Slashed(name);
    if (PathExists(path)) return path;
    for (const auto& [there, bytes] : fuzz::Files()) {
        if (SameWithoutCase(Slashed(there), path)) return there;
    }
    return path;
}

std::string AbsolutePath(const std::string& path) {
    return path.starts_with('/') ? path : "/" + path;
}

bool PathExists(const std::string& path) { return FileExists(path) || FolderExists(path); }

bool FileExists(const std::string& path) { return fuzz::Files().contains(path); }

bool FolderExists(const std::string& path) {
    const std::string prefix = WithSlash(path);
    const auto file = fuzz::Files().lower_bound(prefix);
    if (file != fuzz::Files().end() && file->first.starts_with(prefix)) return true;
    return fuzz::MadeFolders().contains(prefix);
}

std::string ReadFile(const std::string& path) {
    const auto file = fuzz::Files().find(path);
    if (file == fuzz::Files().end()) throw FileError(path, "cannot be opened: it is not there");
    return file->second;
}

FileStart ReadFileStart(const std::string& path, std::size_t count) {
    const std::string bytes = ReadFile(path);
    return {bytes.substr(0, count), bytes.size()};
}

void WriteFileAtomically(const std::string& path, std::string_view bytes) {
    fuzz::Files().insert_or_assign(path, std::string(bytes));
}

void WriteFileKeepingTail(const std::string& path, std::string_view bytes) {
    std::string& file = fuzz::Files()[path];
    file.replace(0, bytes.size(), bytes);
}

void RemoveFile(const std::string& path) { fuzz::Files().erase(path); }

void MakeFolders(const std::string& path) { fuzz::MadeFolders().insert(WithSlash(path)); }

std::vector<std::string> ListFolders(const std::string& path) { return Listed(path, false); }

std::vector<std::string> ListFiles(const std::string& path) { return Listed(path, true); }

}  // namespace quendrel
