// Remembers in the folder of the art which slow tests have passed, by the contents of a program and
// of files. Such a test runs again only when one of them has changed, and always in a fresh clone.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>

namespace quendrel {

using FileContents = std::map<std::filesystem::path, std::string>;

inline std::string Fingerprint(const std::string& program, const FileContents& files) {
    std::string hashes;
    const auto add = [&hashes](const std::string& bytes) {
        hashes += std::to_string(std::hash<std::string>()(bytes)) + '\n';
    };
    add(program);
    for (const auto& [name, bytes] : files) {
        add(name.string());
        add(bytes);
    }
    return std::to_string(std::hash<std::string>()(hashes));
}

class Passed {
public:
    Passed(const std::string& program, const FileContents& files)
        : stamp_(std::filesystem::path(QUENDREL_PASSED_FOLDER) / Fingerprint(program, files)) {}

    bool before() const { return std::filesystem::exists(stamp_); }

    void Remember() const {
        std::filesystem::create_directories(stamp_.parent_path());
        std::ofstream(stamp_).flush();
    }

private:
    std::filesystem::path stamp_;
};

}  // namespace quendrel
