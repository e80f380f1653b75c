#include "platform/desktop/PlayersFolder.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include <unistd.h>

#include "platform/Errors.h"
#include "platform/FolderNames.h"
#include "platform/Home.h"

namespace quendrel {

namespace fs = std::filesystem;

namespace {

/// The folders that the system fills and a player adds to.
constexpr std::array<const char*, 4> kShared{kSkinFolder, kSoundFolder, kMusicFolder, kRulesFolder};

/// What a player has of his own: copied once, where he begins.
constexpr std::array<const char*, 2> kOwn{kHighFolder, kPlaylistFile};

/// Leads to the system's folder. Every link of ours goes through it, so a system that has moved is
/// followed by this one, and a player's own links are told from ours.
constexpr const char* kSystemLink = ".system";

/// Throws where an operation on `path` has failed.
void Require(const std::error_code& error, const fs::path& path) {
    if (error) throw FileError(path.string(), "cannot be brought up to date: " + error.message());
}

bool Exists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// A link that is known to lead nowhere.
bool LeadsNowhere(const fs::path& link) {
    std::error_code ignored;
    return fs::status(link, ignored).type() == fs::file_type::not_found;
}

/// Something, a link that leads nowhere too.
bool IsTaken(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

/// The target of a link; empty for anything else.
fs::path TargetOf(const fs::path& path) {
    std::error_code ignored;
    return fs::read_symlink(path, ignored);
}

/// Another start may have made the same link meanwhile.
void MakeLink(const fs::path& target, const fs::path& at) {
    std::error_code error;
    fs::create_symlink(target, at, error);
    if (TargetOf(at) != target) Require(error, at);
}

void MakeFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    Require(error, path);
}

template <class Visit>
void ForEachEntry(const fs::path& folder, const Visit& visit) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        visit(entry->path());
    }
    Require(error, folder);
}

/// Copies what a player had while he played in the system's folder.
std::error_code TakeOver(const fs::path& system, const fs::path& into) {
    std::error_code error;
    for (const char* const name : kOwn) {
        if (!error && fs::exists(system / name, error)) {
            fs::copy(system / name, into / name, fs::copy_options::recursive, error);
        }
    }
    return error;
}

/// The folder appears with all that it takes over, or not at all. Until then it is hidden.
void Begin(const fs::path& player, const fs::path& system) {
    if (Exists(player)) return;
    MakeFolder(player.parent_path());
    const std::string hidden = "." + player.filename().string() + ".new.XXXXXX";
    std::string made = (player.parent_path() / hidden).string();
    if (::mkdtemp(made.data()) == nullptr) Require({errno, std::generic_category()}, player);
    std::error_code error = TakeOver(system, made);
    if (!error) fs::rename(made, player, error);
    std::error_code ignored;
    if (error) fs::remove_all(made, ignored);
    if (!Exists(player)) Require(error, player);  // another start may have been quicker
}

/// The new link comes in the place of the old one at once: without it nothing is there to play
/// with.
void PointToSystem(const fs::path& player, const fs::path& system) {
    const fs::path link = player / kSystemLink;
    const fs::path fresh = link.string() + ".new";
    std::error_code error;
    fs::remove(fresh, error);  // left by a start that was killed
    if (TargetOf(link) == system) return;
    if (IsTaken(link) && TargetOf(link).empty()) {
        error = std::make_error_code(std::errc::file_exists);
    }
    if (!error) fs::create_symlink(system, fresh, error);
    if (!error) fs::rename(fresh, link, error);
    // Another start may have made the same link meanwhile.
    if (TargetOf(link) != system) Require(error, link);
}

void LinkWhatIsNew(const fs::path& player, const fs::path& system, const fs::path& kind) {
    if (!Exists(system / kind)) return;
    MakeFolder(player / kind);
    ForEachEntry(system / kind, [&](const fs::path& shared) {
        const fs::path at = player / kind / shared.filename();
        if (!IsTaken(at)) MakeLink(".." / fs::path(kSystemLink) / kind / shared.filename(), at);
    });
}

void TakeAwayWhatIsGone(const fs::path& player, const fs::path& kind) {
    if (!Exists(player / kind)) return;
    ForEachEntry(player / kind, [&](const fs::path& at) {
        const fs::path ours = ".." / fs::path(kSystemLink) / kind / at.filename();
        if (TargetOf(at) != ours || !LeadsNowhere(at)) return;
        std::error_code error;
        fs::remove(at, error);
        Require(error, at);
    });
}

bool HasSkins(const fs::path& folder) { return Exists(folder / kSkinFolder); }

bool IsWritable(const std::string& path) { return ::access(path.c_str(), W_OK) == 0; }

fs::path SystemFolder(const fs::path& programFolder) {
    if (HasSkins(programFolder)) return programFolder;
    return (programFolder / QUENDREL_DATA_FROM_PROGRAM).lexically_normal();
}

/// A player's folder that cannot be brought up to date is used as it is.
std::string FolderFollowing(const fs::path& system) {
    std::string player = PlayersFolder();
    try {
        FollowSystem(player, system.string());
    } catch (const FileError& error) {
        ReportTrouble(error.what());
        if (!HasSkins(player)) return system.string();
    }
    return player;
}

}  // namespace

std::string PlayersFolder() {
    return FolderOfPlayer("XDG_DATA_HOME", ".local/share") + "/quendrel";
}

std::string FolderOfProgram() {
    std::error_code unknown;
    return fs::read_symlink("/proc/self/exe", unknown).parent_path().string();
}

void FollowSystem(const std::string& player, const std::string& system) {
    Begin(player, system);
    PointToSystem(player, system);
    for (const char* const kind : kShared) {
        LinkWhatIsNew(player, system, kind);
        TakeAwayWhatIsGone(player, kind);
    }
}

std::string FolderToPlayIn(const std::string& asked, const std::string& programFolder) {
    if (asked.empty()) return FolderFollowing(SystemFolder(programFolder));
    return IsWritable(asked) || !HasSkins(asked) ? asked : FolderFollowing(asked);
}

}  // namespace quendrel
