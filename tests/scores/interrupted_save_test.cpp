// A save of the highscores that is interrupted at every one of its system calls in turn.
#include <filesystem>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "Tracer.h"
#include "scores/HighscoreStore.h"

namespace quendrel::test {
namespace {

class InterruptedSave : public ::testing::Test {
protected:
    InterruptedSave() {
        global.Settings.GameMode = 0;
        global.HighFolder = folder.path() + "\\High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        Save("before");
        old_ = Stored();
        Save("afterwards");
        new_ = Stored();
    }

    void Save(const std::string& name) {
        for (int i = 1; i <= 10; ++i) global.HighscoreList[i] = {name, 1, 1};
        store.SaveHighscores();
    }

    std::string Stored() const { return folder.Read("High/Easy.hsc"); }

    /// Interrupts the save at each of its system calls; returns how many calls there were.
    int InterruptEverywhere(const Disturbance& disturbance) {
        int calls = 0;
        int kept = 0;
        for (bool reached = true; reached; ++calls) {
            std::filesystem::remove_all(folder.path() + "/High");
            std::filesystem::create_directories(folder.path() + "/High");
            folder.Write("High/Easy.hsc", old_);
            {
                Tracer tracer([this] { Save("afterwards"); });
                reached = tracer.Disturb(calls, disturbance);
            }
            const std::string stored = Stored();
            EXPECT_TRUE(stored == old_ || stored == new_) << "system call " << calls;
            if (stored == old_) ++kept;
        }
        EXPECT_EQ(Stored(), new_);
        EXPECT_GT(kept, 0);
        return calls;
    }

    TemporaryFolder folder;
    Global global;
    HighscoreStore store{global};

private:
    std::string old_;
    std::string new_;
};

TEST_F(InterruptedSave, KilledAtAnyCallItLeavesTheOldBytesOrTheNewOnes) {
    EXPECT_GT(InterruptEverywhere({}), 5);
}

TEST_F(InterruptedSave, OnAFullDiskItLeavesTheOldBytesOrTheNewOnes) {
    EXPECT_GT(InterruptEverywhere({ENOSPC}), 5);
}

TEST_F(InterruptedSave, WithoutPermissionItLeavesTheOldBytesOrTheNewOnes) {
    EXPECT_GT(InterruptEverywhere({EACCES}), 5);
}

}  // namespace
}  // namespace quendrel::test
