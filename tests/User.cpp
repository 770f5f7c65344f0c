// SPDX-License-Identifier: MIT
#include "User.h"

#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <filesystem>
#include <random>
#include <stdexcept>

namespace tessarin {

static const std::string FirstLine = "Index;Value;Locked";

static std::string WithBars(const std::string& text) {
    return ReplaceAll(text, "\r\n", "|");
}
static std::string WithLineBreaks(const std::string& text) {
    return ReplaceAll(text, "|", "\r\n");
}

std::vector<Connection> Listen(Game& game, std::function<void(const std::string&, int)> handler) {
    auto& events = game.Events;
    std::vector<Connection> connections;
    for (const auto& [event, name] : {std::pair(&events.BeforeIndexChanged, "BeforeIndexChanged"),
                                      {&events.IndexChanged, "IndexChanged"},
                                      {&events.StatusChanged, "StatusChanged"},
                                      {&events.IsWinner, "IsWinner"},
                                      {&events.IsDeadEnd, "IsDeadEnd"}})
        connections.push_back(
            event->Connect([handler, name = name](int index) { handler(name, index); }));
    connections.push_back(game.Fields->Events.Init.Connect(
        [handler, &grid = *game.Fields] { handler("Init", grid.Index()); }));
    return connections;
}

Recorder::Recorder()
    : Folder(testing::TempDir() + "my\\ tessarin." + std::to_string(std::random_device{}()) + "/") {
    std::filesystem::create_directory(Folder);
}

Recorder::~Recorder() {
    std::filesystem::remove_all(Folder);
}

std::string Recorder::TakeAnswer() {
    if (Answers.empty()) return "";
    const std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
}

void Recorder::ExpectNothingLeft() {
    EXPECT_FALSE(mMeanwhile) << "there was no box, pause or change";
    EXPECT_EQ(testing::PrintToString(Answers), "{}") << "nobody asked";
}

User::User(Recorder& recorder, Game& played)
    : game(played),
      grid(*game.Fields),
      play(*game.Play),
      folder(recorder.Folder),
      mRecorder(recorder) {
    mChanges = game.Events.StatusChanged.Connect([this](int) { mRecorder.Paused(); });
}

std::string User::Told(const std::function<void()>& step) {
    mRecorder.Tell();
    const std::string outer = std::exchange(mRecorder.Record, "");
    try {
        step();
    } catch (const std::exception& error) {
        mRecorder.Tell("! ", error.what());
    }
    mRecorder.Tell();
    const std::string told = std::exchange(mRecorder.Record, outer);
    return ReplaceAll(WithBars(told.substr(0, told.find_last_of(' '))), folder, "");
}

void User::Load(const std::string& lines) {
    grid.SetTextCSV(WithLineBreaks(FirstLine + "|" + lines));
}

std::string User::Grid() {
    const std::string text = WithBars(grid.TextCSV());
    return text == FirstLine ? "" : text.substr(FirstLine.size() + 1);
}

void User::Fill(std::string values) {
    std::erase(values, ' ');
    std::string lines;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values[i] != '.') lines += std::to_string(i + 1) + ";" + values[i] + ";0|";
    Load(lines);
    grid.Status();
    Refresh();
}

void User::FullBut(const std::vector<int>& empty) {
    Fill("123456789 456789123 789123456 234567891 567891234 891234567 345678912 678912345 "
         "912345678");
    for (const int index : empty)
        At(index).SetValue(0);
    grid.SetIndex(empty.front());
}

std::string User::Write(const std::string& name, const std::string& lines) {
    EXPECT_EQ(WriteTextFile(folder + name, WithLineBreaks(lines), "", true), "");
    return folder + name;
}

std::string User::Read(const std::string& name) {
    return WithBars(ReadTextFile(folder + name));
}

} // namespace tessarin
