// A file of highscores. Its last four bytes are also the result that is then entered.
#include <algorithm>
#include <string>

#include "Global.h"
#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/AnsiText.h"
#include "platform/Records.h"
#include "scores/HighscoreStore.h"

namespace quendrel::fuzz {

namespace {

const std::string kScoreFile = "/High/Medium.hsc";

/// The bytes that the list takes in the file: each record has a length, a name and two numbers.
std::size_t LengthOf(const HighscoreTable& list) {
    std::size_t length = 0;
    for (const HighscoreEntry& entry : list) length += 6 + ToAnsi(entry.Name).size();
    return length;
}

bool IsInOrder(const HighscoreTable& list) {
    return std::is_sorted(list.begin(), list.end(), [](const auto& entry, const auto& next) {
        return entry.Time < next.Time;
    });
}

void SaveAndRead(Global& global, HighscoreStore& store) {
    const HighscoreTable list = global.HighscoreList;
    const std::string old = Files()[kScoreFile];
    store.SaveHighscores();
    const std::string& file = Files()[kScoreFile];
    const std::size_t length = LengthOf(list);
    Promise(file.size() == std::max(length, old.size()), "a file has its records and its old tail");
    Promise(old.size() <= length || file.substr(length) == old.substr(length),
            "the tail of a longer file stays");
    store.LoadHighscores();
    Promise(global.HighscoreList == list, "a list that was saved is read as the same");
}

/// A default row has a blank, and so has a name in which one stands for a control character.
bool IsAsInItsFile(const HighscoreTable& list) {
    return std::none_of(list.begin(), list.end(), [](const HighscoreEntry& entry) {
        return entry.Name.find(' ') != std::string::npos;
    });
}

void Enter(Global& global, HighscoreStore& store, std::string_view result) {
    RecordReader reader(result);
    global.ActiveRow = reader.Number().value_or(1);
    global.ElapsedSeconds = reader.Number().value_or(0);
    const HighscoreTable before = global.HighscoreList;
    const bool qualifies = store.Qualifies();
    const int place = store.InsertNewScore();
    const HighscoreTable& list = global.HighscoreList;
    Promise(place >= 0 && place <= kHighscores, "a place is one of ten, or none");
    Promise(!qualifies || place > 0, "who qualifies has a place");
    Promise(place > 0 || list == before, "who has no place changes nothing");
    for (int i = 1; place > 0 && i <= kHighscores; ++i) {
        const HighscoreEntry entered{"", global.ActiveRow, global.ElapsedSeconds};
        const HighscoreEntry& wanted = i < place ? before[i] : i == place ? entered : before[i - 1];
        Promise(list[i] == wanted, "a result moves those below it down by one place");
    }
    Promise(!IsInOrder(before) || IsInOrder(list), "a list in order stays in order");
}

}  // namespace

void Highscores(std::string_view bytes) {
    Files()[kScoreFile] = bytes;
    Global global;
    global.Settings.GameMode = 1;
    global.HighFolder = "\\High\\";
    global.HighscoreFile = HighscoreFileName(global);
    HighscoreStore store(global);
    store.LoadHighscores();
    for (const HighscoreEntry& entry : global.HighscoreList) {
        Promise(NameAsStored(entry.Name) == entry.Name, "a name is one that can be stored");
    }
    const bool isAsInItsFile = IsAsInItsFile(global.HighscoreList);
    SaveAndRead(global, store);
    Promise(!isAsInItsFile || Files()[kScoreFile] == bytes, "what was read is written as it stood");
    Enter(global, store, bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 4)));
    SaveAndRead(global, store);
}

}  // namespace quendrel::fuzz
