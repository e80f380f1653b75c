// That a program makes the same files each time, bit for bit. What passed is remembered by the
// contents of the program and of all that it made.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "Passed.h"

namespace quendrel {

/// All but a skin's Fonts.ini, which is copied there.
inline FileContents FilesBelow(const std::filesystem::path& folder) {
    FileContents files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().filename() != "Fonts.ini")
            files[std::filesystem::relative(entry.path(), folder)] = BytesOf(entry.path());
    return files;
}

/// `maker` makes all files of the folder `made` anew, `count` of them, as they are there. It is
/// called with `arguments`, where "%" stands for the folder that is to hold the new one.
inline void ExpectTheSameWhenMadeAgain(const std::filesystem::path& made, std::size_t count,
                                       const std::string& maker, const std::string& arguments) {
    namespace fs = std::filesystem;
    const FileContents files = FilesBelow(made);
    EXPECT_EQ(files.size(), count);
    const Passed passed(BytesOf(maker) + arguments, files);
    if (passed.before()) {
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
    if (!testing::Test::HasFailure()) passed.Remember();
}

}  // namespace quendrel
