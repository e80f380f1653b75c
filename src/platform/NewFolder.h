// A folder that appears whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace quendrel {

/// Is filled in a hidden folder beside its place, and removed again unless it is made to appear.
class NewFolder {
public:
    /// A folder that is to be `name` in the folder `parent`. Throws FileError, as its functions do.
    NewFolder(const std::string& parent, const std::string& name);
    NewFolder(const NewFolder&) = delete;
    NewFolder& operator=(const NewFolder&) = delete;

    /// Where it is until it appears.
    const std::string& path() const { return path_; }

    /// Writes a file that is not there yet. With slashes the name leads into folders, which are
    /// made.
    void Write(const std::string& name, std::string_view bytes) const;

    /// Puts the folder into its place, flushed to the disk. Throws also where anything has its
    /// name; that stands untouched.
    void Appear() const;

private:
    /// Locked as long as it lives, so that it is told from one that was left behind.
    class Hidden {
    public:
        explicit Hidden(const std::string& parent);
        ~Hidden();
        Hidden(const Hidden&) = delete;
        Hidden& operator=(const Hidden&) = delete;

        const std::string& path() const { return path_; }

    private:
        std::string path_;
        int lock_ = -1;
    };

    std::string parent_;
    std::string place_;
    Hidden hidden_;
    std::string path_;
};

/// Removes from `parent` what NewFolders of programs that were killed have left there.
void RemoveLeftFolders(const std::string& parent);

}  // namespace quendrel
