// Every command in the middle of every other one, as the pumping of window events lets it in.
#include "WindowScript.h"

#include <cstdlib>
#include <memory>
#include <set>

namespace tessarin {

class NestedWindow : public WindowScript {
public:
    bool IsOpen() const { return !platform.Closed; }

    // A control's name; a file dialog is answered with the file after the blank.
    void Command(const std::string& command) {
        const auto blank = std::min(command.find(' '), command.size());
        const std::string file = command.substr(std::min(blank + 1, command.size()));
        toolkit.Files.assign(1,
                             file.starts_with("out") ? folder.File(file) : TESSARIN_PUZZLES + file);
        platform.Answers.assign(1, true);
        Click(command.substr(0, blank));
    }

    void Load() {
        game.FileImportCSV(TESSARIN_PUZZLES "nearly-complete.csv");
        window.RefreshAll();
    }

    // Starts `outer` and does `inner` at its pump number `pump`. Whether it lasted so long.
    bool DoNested(const std::string& outer, const std::string& inner, int pump) {
        const int end = platform.Pumps + pump;
        platform.AtPump(pump, [&] { Command(inner); });
        Command(outer);
        platform.AtPump(0, nullptr);
        return platform.Pumps >= end;
    }

    // What holds when nothing runs.
    void ExpectInOrder() {
        if (!IsOpen()) return;
        EXPECT_TRUE(window.mnuFile.Enabled() && window.mnuEdit.Enabled() &&
                    window.mnuView.Enabled());
        EXPECT_TRUE(window.fraAction.Enabled() && window.fraNumPad.Enabled());
        EXPECT_FALSE(window.ViewRunning() || window.ctlRotor1.Running() || platform.Hourglass);
        // Fields that changed while a solve was quiet are not repainted by leaving quiet mode.
        window.RefreshAll();
        for (const auto& field : grid.Items) {
            const int value = field->Value();
            EXPECT_EQ(window.lblField(field->Index).Caption(),
                      value == 0 ? "" : std::to_string(value));
        }
        ExpectRightStatus();
        const KeyedNumbers history = play.History.value_or(KeyedNumbers());
        EXPECT_EQ(std::set<int>(history.begin(), history.end()).size(),
                  static_cast<std::size_t>(history.Count()));
    }

    void ExpectToSolve() {
        if (!IsOpen()) return;
        Command("optChill(0)");
        Load();
        Command("btnSolve");
        EXPECT_TRUE(grid.IsWinner());
        ExpectInOrder();
    }
};

TEST(NestedWindowTest, AnyCommandAtAnyPumpOfAnotherLeavesAWindowThatSolves) {
    const char* const commands[] = {"mnuFileImportCSV easy-1.csv",
                                    "mnuFileImportCSV missing",
                                    "mnuFileImportCSV out.csv",
                                    "mnuFileExportCSV out.csv",
                                    "mnuEditClearFree",
                                    "mnuEditClearAll",
                                    "mnuEditLockAllSet",
                                    "mnuEditLockClear",
                                    "mnuViewFreedom",
                                    "mnuViewGroups",
                                    "mnuViewNeighbours",
                                    "mnuAbout",
                                    "lblDeadEnd",
                                    "lblField(77)",
                                    "btnNumPad(5)",
                                    "btnNumPad(10)",
                                    "btnNextFreeAuto",
                                    "btnGoBackToFreedom",
                                    "btnSolve",
                                    "btnInfo",
                                    "optChill(0)",
                                    "optChill(6)",
                                    "mnuFileQuit"};
    // The pumps of one status pass are alike, so that a step of this size meets every kind of pump
    // in some case; 1 meets every single one.
    const char* const given = std::getenv("TESSARIN_NESTED_STEP");
    const int step = given != nullptr ? std::atoi(given) : 193;
    int offset = 0;
    std::unique_ptr<NestedWindow> test;
    for (const auto& [pace, outer] : {std::pair{"optChill(1)", "btnSolve"},
                                      {"optChill(0)", "btnSolve"},
                                      {"optChill(6)", "btnSolve"},
                                      {"optChill(1)", "mnuViewFreedom"},
                                      {"optChill(1)", "mnuViewGroups"},
                                      {"optChill(1)", "mnuViewNeighbours"},
                                      {"optChill(1)", "mnuFileImportCSV hard-1.csv"}})
        for (const char* const inner : commands) {
            bool lasted = true;
            for (int pump = offset++ % step + 1; lasted; pump += step) {
                SCOPED_TRACE(std::string(inner) + " in " + outer + " at pace " + pace + ", pump " +
                             std::to_string(pump));
                if (!test || !test->IsOpen()) {
                    test.reset();
                    test = std::make_unique<NestedWindow>();
                }
                test->Load();
                test->Command(pace);
                lasted = test->DoNested(outer, inner, pump);
                test->ExpectInOrder();
                test->ExpectToSolve();
                if (testing::Test::HasFailure()) return;
            }
        }
}

} // namespace tessarin
