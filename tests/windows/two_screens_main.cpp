// Runs the tests of the windows that are shown larger, on two of the toolkit's offscreen screens:
// the first has a pixel for each of the toolkit's, the second, to the right of it, two by two.
#include <exception>
#include <iostream>

#include <QApplication>
#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace {

int RunTests(int argc, char** argv) {
    const quendrel::test::TemporaryFolder folder;
    folder.Write("screens.json", R"({"screens": [
        {"name": "first", "x": 0, "y": 0, "width": 2000, "height": 1700, "dpr": 1},
        {"name": "second", "x": 2000, "y": 0, "width": 1100, "height": 1000, "dpr": 2}]})");
    const std::string platform = "offscreen:configfile=" + folder.path() + "/screens.json";
    qputenv("QT_QPA_PLATFORM", platform.c_str());
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return RunTests(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
