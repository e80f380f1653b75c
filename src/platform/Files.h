// Files of the machine. The system keeps file names with backslashes; MachinePath turns such a
// name into a path at the moment of opening.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quendrel {

/// The machine's path for a name with backslashes. A component that does not exist as written is
/// looked up without regard to (ASCII) case; where nothing fits it stays as written. A backslash
/// that leads nowhere is taken for a letter of a name, which it can be on the machine. In a name of
/// more than 64 backslashes nothing is looked up.
std::string MachinePath(std::string_view name);

/// The path from the root on, without dots and doubled slashes. Nothing need be there.
std::string AbsolutePath(const std::string& path);

/// Whether anything is at the machine's path; whether it is a normal file; whether it is a folder.
bool PathExists(const std::string& path);
bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);

/// The whole file. Throws FileError when it cannot be opened or read, or is no plain file.
std::string ReadFile(const std::string& path);

/// The first bytes of a file, and how many it has in all.
struct FileStart {
    std::string bytes;
    std::uintmax_t length = 0;
};

/// Reads `count` bytes, or all of a shorter file. Throws FileError as ReadFile does.
FileStart ReadFileStart(const std::string& path, std::size_t count);

/// Replaces the file by `bytes`, wholly or not at all: a hidden temporary file beside it is
/// written, flushed to the disk and renamed over it. One that a killed save left an hour ago or
/// longer is removed. A symbolic link is followed, also one whose target is still to be made; an
/// existing file keeps its permissions. Throws FileError, also for a file that is read-only or no
/// plain file; what was there then stands untouched.
void WriteFileAtomically(const std::string& path, std::string_view bytes);

/// Writes `bytes` over the beginning of the file, as WriteFileAtomically does: what a longer old
/// file holds behind them stays. Throws FileError; the old file then stands untouched.
void WriteFileKeepingTail(const std::string& path, std::string_view bytes);

/// Deletes the file; one that is already gone is no error. Throws FileError, also for a file that
/// is read-only or no plain file.
void RemoveFile(const std::string& path);

/// Makes the folder and those above it. Throws FileError.
void MakeFolders(const std::string& path);

/// The names of the folders, or of the normal files, in a folder, sorted without regard to case.
/// Hidden ones, whose names begin with a dot, are left out, and those whose names could lead
/// elsewhere.
/// Throw FileError when the folder cannot be read.
std::vector<std::string> ListFolders(const std::string& path);
std::vector<std::string> ListFiles(const std::string& path);

}  // namespace quendrel
