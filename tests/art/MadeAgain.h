// That a program makes the same files each time, bit for bit. What passed is remembered in the
// folder of the art by the contents of the program and of all that it made: only when one of them
// has changed is it made again, and in a fresh clone always.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "Bitmap.h"

namespace quendrel {

using FileContents = std::map<std::filesystem::path, std::string>;

inline FileContents FilesBelow(const std::filesystem::path& folder) {
    FileContents files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[std::filesystem::relative(entry.path(), folder)] = BytesOf(entry.path());
    return files;
}

inline std::string Fingerprint(const std::string& maker, const FileContents& made) {
    std::string hashes;
    const auto add = [&hashes](const std::string& bytes) {
        hashes += std::to_string(std::hash<std::string>()(bytes)) + '\n';
    };
    add(maker);
    for (const auto& [name, bytes] : made) {
        add(name.string());
        add(bytes);
    }
    return std::to_string(std::hash<std::string>()(hashes));
}

/// `maker` makes all files of the folder `made` anew, `count` of them, as they are there. It is
/// called with `arguments`, where "%" stands for the folder that is to hold the new one.
inline void ExpectTheSameWhenMadeAgain(const std::filesystem::path& made, std::size_t count,
                                       const std::string& maker, const std::string& arguments) {
    namespace fs = std::filesystem;
    const FileContents files = FilesBelow(made);
    EXPECT_EQ(files.size(), count);
    const fs::path passed =
        fs::path(QUENDREL_MADE_AGAIN_FOLDER) / Fingerprint(BytesOf(maker) + arguments, files);
    if (fs::exists(passed)) {
        std::cout << made.filename() << " has passed before with these very bits\n";
        return;
    }
    const fs::path again =
        fs::temp_directory_path() / ("quendrel_made_again_" + made.filename().string());
    fs::remove_all(again);
    const std::size_t place = arguments.find('%');
    const std::string command = '"' + maker + "\" " + arguments.substr(0, place) + again.string() +
                                arguments.substr(place + 1);
    // NOLINTNEXTLINE(cert-env33-c): our own program with paths of the build folder
    ASSERT_EQ(std::system(command.c_str()), 0);
    const FileContents filesAgain = FilesBelow(again / made.filename());
    fs::remove_all(again);
    EXPECT_EQ(filesAgain.size(), count);
    for (const auto& [name, bytes] : filesAgain) {
        const auto same = files.find(name);
        EXPECT_TRUE(same != files.end() && same->second == bytes) << name;
    }
    if (testing::Test::HasFailure()) return;
    fs::create_directories(passed.parent_path());
    std::ofstream(passed).flush();
}

}  // namespace quendrel
