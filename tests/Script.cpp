#include "Script.h"

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
    const auto before = std::exchange(mHistory, History());
    tellMissing(before, mHistory, '-');
    tellMissing(mHistory, before, '+');
    const int pumps = mPumps - std::exchange(mPumpsTold, mPumps);
    if (TellsPumps && pumps > 0) Record += "(" + std::to_string(pumps) + ") ";
    if (!text.empty()) Record += text + " ";
}

void Recorder::AtPump(int n, std::function<void()> action) {
    mPumpOfAction = mPumps + n;
    mAction = std::move(action);
}

void Recorder::Pumped() {
    if (++mPumps == mPumpOfAction && mAction) std::exchange(mAction, nullptr)();
}

std::vector<int> Numbers(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<int>(words), {}};
}

Script::Script(Recorder& recorder, Game& played)
    : game(played),
      folder(testing::TempDir() + "tessarin-" + std::to_string(std::random_device{}()) + "/"),
      mRecorder(recorder) {
    std::filesystem::create_directory(folder);
    recorder.History = [this] {
        return play.History ? std::vector(play.History->begin(), play.History->end())
                            : std::vector<int>();
    };
    recorder.Meanwhile = [this] {
        for (const Row& row : std::exchange(mDuring, {}))
            Run(row);
    };
    mChanges = game.Events.StatusChanged.Connect([this](int) { mRecorder.Meanwhile(); });
    const auto lines = [](const auto& text) { return ReplaceAll(text, "|", "\r\n"); };
    mCommands = {
        {"fill", [&](int, auto& cells) { Fill(cells); }},
        // A full grid but for some fields; the first of them becomes the current one.
        {"full",
         [&](int first, auto& empty) {
             Fill("123456789 456789123 789123456 234567891 567891234 891234567 345678912 "
                  "678912345 912345678");
             for (const int index : Numbers(empty))
                 At(index).SetValue(0);
             grid.SetIndex(first);
         }},
        {"index", [&](int i, auto&) { grid.SetIndex(i); }},
        {"set", [&](int i, auto& text) { At(i).SetValue(Numbers(text).at(1)); }},
        {"lock", [&](int i, auto& text) { At(i).SetLocked(Numbers(text).at(1) == 1); }},
        {"csv", [&, lines](int, auto& text) { grid.SetTextCSV(lines(text)); }},
        {"is", [&](int, auto&) { Tell(grid.TextCSV().substr(18)); }},
        {"cursor", [&](int, auto&) { Tell(grid.Index()); }},
        // How many fields are empty, locked and entered, the next free field, and all dead fields.
        {"counts",
         [&](int, auto&) {
             std::vector counts{grid.FreeCount(), grid.LockedCount(), grid.SetCount(),
                                grid.NextFreeField()};
             counts.insert(counts.end(), grid.DeadFields->begin(), grid.DeadFields->end());
             Tell(Text(counts));
         }},
        {"history", [&](int, auto&) { Tell(play.History ? Text(*play.History) : "off"); }},
        {"trace", // with this history
         [&](int, auto& history) {
             play.Reset();
             play.SetTracing(true);
             for (const int index : Numbers(history))
                 play.History->Add(index);
         }},
        {"write", // a file: its name, and lines separated by "|"
         [&, lines](int, auto& text) {
             const auto end = std::min(text.find(' '), text.size() - 1);
             const auto name = folder + text.substr(0, end);
             WriteTextFile(name, lines(text.substr(end + 1)), "", true);
         }},
        {"read", [&](int, auto& name) { Tell(ReadTextFile(folder + name)); }},
        {"pump", // runs a step in a later one
         [&](int n, auto& text) {
             mRecorder.AtPump(n, [this, step = text.substr(text.find(' ') + 1)] { Step(step); });
         }},
    };
}

Script::~Script() {
    EXPECT_TRUE(mDuring.empty()) << "never run: " << mDuring[0].Text;
    std::filesystem::remove_all(folder);
}

void Script::Fill(std::string cells) {
    std::erase(cells, ' ');
    std::string lines = "Index;Value;Locked";
    for (std::size_t i = 0; i < cells.size(); ++i)
        if (cells[i] != '.') lines += "\r\n" + std::to_string(i + 1) + ";" + cells[i] + ";0";
    grid.SetTextCSV(lines);
    grid.Status();
}

void Script::Do(const std::string& rows, int line, const char* file) {
    std::istringstream text(rows);
    for (std::string row; std::getline(text, row); ++line)
        Run({row.substr(std::min(row.find_first_not_of(' '), row.size())), line, file});
}

void Script::Run(const Row& row) {
    if (row.Text.empty() || row.Text.starts_with("//") || testing::Test::HasFailure()) return;
    if (row.Text.starts_with("during "))
        return mDuring.push_back({row.Text.substr(7), row.Line, row.File});
    const testing::ScopedTrace trace(row.File, row.Line, row.Text);
    const auto end = std::min(row.Text.find(" >"), row.Text.size());
    const std::string steps = row.Text.substr(0, end);
    std::string told;
    for (std::size_t begin = 0, next = 0; next != std::string::npos; begin = next + 3) {
        next = steps.find(" & ", begin);
        told = Told(steps.substr(begin, next - begin));
        if (next != std::string::npos || end == row.Text.size()) {
            EXPECT_EQ(told.find("! "), std::string::npos) << told;
        }
    }
    if (end < row.Text.size()) {
        EXPECT_EQ(told, row.Text.substr(std::min(end + 3, row.Text.size())));
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

} // namespace tessarin
