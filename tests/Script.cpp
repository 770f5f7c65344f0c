#include "Script.h"

#include "play/Play.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>
#include <stdexcept>

namespace tessarin {

void Recorder::TellText(const std::string& text) {
    const auto tellMissing = [this](const auto& from, const auto& in, char sign) {
        for (const int index : from)
            if (std::ranges::find(in, index) == in.end())
                Record += sign + std::to_string(index) + " ";
    };
    const KeyedNumbers history = Player->History.value_or(KeyedNumbers());
    const auto before = std::exchange(mHistory, {history.begin(), history.end()});
    tellMissing(before, mHistory, '-');
    tellMissing(mHistory, before, '+');
    const int pumps = mPumps - std::exchange(mPumpsTold, mPumps);
    if (TellsPumps && pumps > 0) Record += "(" + std::to_string(pumps) + ") ";
    if (!text.empty()) Record += text + " ";
}

std::vector<int> Numbers(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<int>(words), {}};
}

Script::Script(Recorder& recorder, Game& played)
    : game(played),
      grid(*game.Fields),
      play(*game.Play),
      folder(testing::TempDir() + "tessarin-" + std::to_string(std::random_device{}()) + "/"),
      mRecorder(recorder) {
    std::filesystem::create_directory(folder);
    recorder.Player = &play;
    recorder.Meanwhile = [this] {
        for (const Story& story : std::exchange(mDuring, {}))
            Do(story.Rows, story.Line, story.File);
    };
    mChanges = game.Events.StatusChanged.Connect([this](int) { mRecorder.Meanwhile(); });

    const auto lines = [](const auto& text) { return ReplaceAll(text, "|", "\r\n"); };
    // Nine groups of nine make a whole grid; "." and all that is left out is empty.
    Add("fill", [this](int, auto& cells) { Fill(cells); });
    // A full grid but for some fields; the first of them becomes the current one.
    Add("full", [this](int first, auto& empty) {
        Fill("123456789456789123789123456234567891567891234891234567345678912678912345912345678");
        for (const int index : Numbers(empty))
            At(index).SetValue(0);
        grid.SetIndex(first);
    });
    Add("index", [this](int i, auto&) { grid.SetIndex(i); });
    Add("set", [this](int i, auto& text) { At(i).SetValue(Numbers(text).at(1)); });
    Add("lock", [this](int i, auto& text) { At(i).SetLocked(Numbers(text).at(1) == 1); });
    Add("csv", [=, this](int, auto& text) { grid.SetTextCSV(lines(text)); });
    Add("is", [this](int, auto&) { Tell(grid.TextCSV().substr(18)); });
    Add("cursor", [this](int, auto&) { Tell(grid.Index()); });
    // How many fields are empty, and how many locked.
    Add("counts", [this](int, auto&) { Tell(grid.FreeCount(), " ", grid.LockedCount()); });
    Add("trace", [this](int, auto& history) { // with this history
        play.Reset();
        play.SetTracing(true);
        for (const int index : Numbers(history))
            play.History->Add(index);
    });
    Add("write", [=, this](int, auto& text) { // a file: its name, and lines separated by "|"
        const auto end = text.find(' ');
        WriteTextFile(folder + text.substr(0, end), lines(text.substr(end + 1)), "", true);
    });
    Add("read", [this](int, auto& name) { Tell(ReadTextFile(folder + name)); });
    Add("pump", [this](int n, auto& text) {
        mRecorder.AtPump(n, [this, step = text.substr(text.find(' '))] { Step(step); });
    });
}

Script::~Script() {
    EXPECT_TRUE(mDuring.empty()) << "never run: " << mDuring[0].Rows;
    std::filesystem::remove_all(folder);
}

void Script::Fill(std::string cells) {
    std::erase(cells, ' ');
    std::string lines = "Index;Value;Locked";
    for (std::size_t i = 0; i < cells.size(); ++i)
        if (cells[i] != '.') lines += "\r\n" + std::to_string(i + 1) + ";" + cells[i] + ";0";
    grid.SetTextCSV(lines);
    grid.Status();
    Refresh();
}

void Script::Do(const std::string& rows, int line, const char* file) {
    std::istringstream text(rows);
    for (std::string row; std::getline(text, row); ++line) {
        row.erase(0, row.find_first_not_of(' '));
        if (row.empty() || row.starts_with("//") || testing::Test::HasFailure()) continue;
        if (row.starts_with("during ")) {
            mDuring.push_back({"", row.substr(7), line, file});
            continue;
        }
        const testing::ScopedTrace trace(file, line, row);
        std::istringstream steps(ReplaceAll(row, " & ", "\n"));
        for (std::string step; std::getline(steps, step);) {
            const auto end = std::min(step.find(" >"), step.size());
            const std::string told = Told(step.substr(0, end));
            const bool checked = end < step.size();
            EXPECT_EQ(told, checked ? step.substr(std::min(end + 3, step.size())) : told) << step;
            EXPECT_TRUE(checked || told.find("! ") == std::string::npos) << step << ": " << told;
        }
    }
}

std::string Script::Told(const std::string& step) {
    Tell("");
    const std::string outer = std::exchange(mRecorder.Record, "");
    Step(step);
    const std::string told = std::exchange(mRecorder.Record, outer);
    return ReplaceAll(ReplaceAll(told.substr(0, told.find_last_of(' ')), "\r\n", "|"), folder, "");
}

void Script::Step(const std::string& step) {
    std::istringstream text(step);
    std::string command, words;
    std::getline(text >> command >> std::ws, words);
    try {
        mCommands.at(command)(std::atoi(words.c_str()), words);
    } catch (const std::exception& error) {
        Tell("! ", error.what());
    }
    Tell(""); // what has changed without being told
}

std::vector<Story> SplitStories(const std::string& text, int line, const char* file) {
    std::vector<Story> stories;
    std::istringstream rows(text);
    for (std::string row; std::getline(rows, row); ++line)
        if (row.ends_with(':'))
            stories.push_back({row.substr(4, row.size() - 5), "", line, file});
        else if (!stories.empty())
            stories.back().Rows += "\n" + row;
    return stories;
}

} // namespace tessarin
