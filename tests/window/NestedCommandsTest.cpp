// Commands that arrive while another one is under way, at every pump of it.
#include "WindowFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tessarin {
namespace {

// A window of its own for each case; TestBody is never run.
class Case : public WindowTest {
public:
    Case() {
        Unexpected = [this](QDialog& dialog) { CloseBox(dialog); };
        goGame->FileImportCSV(TESSARIN_PUZZLES "/nearly-complete.csv");
        window.RefreshAll();
    }

    void TestBody() override {}

    // Starts `outer` and lets `inner` arrive at its pump number `pump`. Returns whether the command
    // lasted so long.
    bool Run(const std::function<void(Case&)>& outer, const std::function<void(Case&)>& inner,
             int pump) {
        spy.AtPump = [this, &inner, pump, count = 0]() mutable {
            if (++count == pump) inner(*this);
        };
        outer(*this);
        spy.AtPump = nullptr;
        return mbArrived;
    }

    // A click as it arrives from the toolkit, also where the tests have no time for a real one.
    void Arrive(Control& control) {
        mbArrived = true;
        control.RaiseClick();
    }
    void Arrive(MenuItem& item, const QString& file) {
        ImportFile = file;
        Arrive(item);
    }
    void ArriveClose() {
        mbArrived = true;
        form->close();
    }

    // Nothing is left of what ran: the window solves a puzzle like a new one.
    void ExpectUsable() {
        if (platform.Closed()) return;
        EXPECT_TRUE(window.mnuFile.Enabled() && window.mnuEdit.Enabled() &&
                    window.mnuView.Enabled());
        EXPECT_TRUE(window.fraAction.Enabled() && window.fraNumPad.Enabled());
        EXPECT_FALSE(window.ViewRunning());
        EXPECT_FALSE(window.ctlRotor1.Running());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        window.optChill(0).Select();
        goGame->FileImportCSV(TESSARIN_PUZZLES "/easy-1.csv");
        window.RefreshAll();
        window.btnSolve.RaiseClick();
        EXPECT_TRUE(Grid().IsWinner());
        for (int k = 1; k <= 81; ++k)
            EXPECT_EQ(window.lblField(k).Caption(), std::to_string(At(k).Value())) << k;
    }

    using WindowTest::File;
    using WindowTest::folder;
    using WindowTest::window;
    QString ImportFile; // what a file dialog is answered with

private:
    // Says Yes, chooses the file, or closes what has one button.
    void CloseBox(QDialog& dialog) {
        if (auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit")) {
            name->setText(ImportFile);
            QMetaObject::invokeMethod(&dialog, "accept");
        } else {
            auto* const box = qobject_cast<QMessageBox*>(&dialog);
            auto* const yes = box->button(QMessageBox::Yes);
            (yes != nullptr ? yes : box->button(QMessageBox::Ok))->click();
        }
        if (dialog.isVisible()) dialog.reject();
    }

    bool mbArrived = false;
};

using Command = std::function<void(Case&)>;

const std::vector<std::pair<const char*, Command>>& OuterCommands() {
    static const std::vector<std::pair<const char*, Command>> commands{
        {"solve", [](Case& c) { c.window.btnSolve.RaiseClick(); }},
        {"quiet solve",
         [](Case& c) {
             c.window.optChill(0).Select();
             c.window.btnSolve.RaiseClick();
         }},
        {"step",
         [](Case& c) {
             c.window.optChill(6).Select();
             c.window.btnSolve.RaiseClick();
         }},
        {"freedom view", [](Case& c) { c.window.mnuViewFreedom.RaiseClick(); }},
        {"groups view", [](Case& c) { c.window.mnuViewGroups.RaiseClick(); }},
        {"import", [](Case& c) {
             c.ImportFile = TESSARIN_PUZZLES "/hard-1.csv";
             c.window.mnuFileImportCSV.RaiseClick();
         }}};
    return commands;
}

const std::vector<std::pair<const char*, Command>>& InnerCommands() {
    static const std::vector<std::pair<const char*, Command>> commands{
        {"good import",
         [](Case& c) { c.Arrive(c.window.mnuFileImportCSV, TESSARIN_PUZZLES "/medium-1.csv"); }},
        {"malformed import",
         [](Case& c) {
             c.Arrive(c.window.mnuFileImportCSV,
                      c.File("bad.csv", "Index;Value;Locked\r\n1;2;1\r\n99;1;1\r\n2;x;1"));
         }},
        {"missing import",
         [](Case& c) { c.Arrive(c.window.mnuFileImportCSV, "/nowhere/none.csv"); }},
        {"export",
         [](Case& c) { c.Arrive(c.window.mnuFileExportCSV, c.folder.filePath("out.csv")); }},
        {"clear free", [](Case& c) { c.Arrive(c.window.mnuEditClearFree); }},
        {"clear all", [](Case& c) { c.Arrive(c.window.mnuEditClearAll); }},
        {"lock all", [](Case& c) { c.Arrive(c.window.mnuEditLockAllSet); }},
        {"unlock all", [](Case& c) { c.Arrive(c.window.mnuEditLockClear); }},
        {"freedom view", [](Case& c) { c.Arrive(c.window.mnuViewFreedom); }},
        {"groups view", [](Case& c) { c.Arrive(c.window.mnuViewGroups); }},
        {"neighbours view", [](Case& c) { c.Arrive(c.window.mnuViewNeighbours); }},
        {"dead cells view", [](Case& c) { c.Arrive(c.window.lblDeadEnd); }},
        {"about", [](Case& c) { c.Arrive(c.window.mnuAbout); }},
        {"field", [](Case& c) { c.Arrive(c.window.lblField(77)); }},
        {"quiet", [](Case& c) { c.Arrive(c.window.optChill(0)); }},
        {"step", [](Case& c) { c.Arrive(c.window.optChill(6)); }},
        {"solve", [](Case& c) { c.Arrive(c.window.btnSolve); }},
        {"digit", [](Case& c) { c.Arrive(c.window.btnNumPad(5)); }},
        {"back to freedom", [](Case& c) { c.Arrive(c.window.btnGoBackToFreedom); }},
        {"quit", [](Case& c) { c.Arrive(c.window.mnuFileQuit); }},
        {"close", [](Case& c) { c.ArriveClose(); }},
    };
    return commands;
}

// The pumps of one status pass are alike, so that a step of this size meets every kind of pump in
// some case; 1 meets every single one.
int PumpStep() {
    const char* const step = std::getenv("TESSARIN_NESTED_STEP");
    return step != nullptr ? std::max(1, std::atoi(step)) : 97;
}

TEST(NestedCommands, AtAnyPumpLeaveAWindowThatSolves) {
    int cases = 0;
    for (const auto& [outerName, outer] : OuterCommands())
        for (std::size_t i = 0; i < InnerCommands().size(); ++i) {
            const auto& [innerName, inner] = InnerCommands()[i];
            for (int pump = static_cast<int>(i) % PumpStep() + 1;; pump += PumpStep()) {
                SCOPED_TRACE(std::string(innerName) + " in " + outerName + " at pump " +
                             std::to_string(pump));
                Case window;
                const bool lasted = window.Run(outer, inner, pump);
                window.ExpectUsable();
                ++cases;
                if (!lasted || HasFailure()) break;
            }
            if (testing::Test::HasFailure()) return;
        }
    RecordProperty("cases", cases);
}

// Every pump brings another click, far more than the stack could hold nested in one another.
TEST_F(WindowTest, AFloodOfClicksDuringASolveIsAnsweredToTheLastOne) {
    constexpr int Clicks = 20'000;
    constexpr std::uintptr_t StackBytes = 1 << 20;
    goGame->FileImportCSV(TESSARIN_PUZZLES "/nearly-complete.csv");
    window.RefreshAll();
    std::vector<int> answered;
    std::uintptr_t deepest = UINTPTR_MAX;
    const auto here = [] { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); };
    window.lblField.Click = [&, click = window.lblField.Click](int index) {
        answered.push_back(index);
        deepest = std::min(deepest, here());
        click(index);
    };
    int sent = 0;
    spy.AtPump = [&] {
        if (sent < Clicks) window.lblField(sent++ % 81 + 1).RaiseClick();
    };
    window.btnSolve.RaiseClick();
    while (sent < Clicks)
        PumpEvents();
    ASSERT_EQ(answered.size(), static_cast<std::size_t>(Clicks));
    for (int i = 0; i < Clicks; ++i)
        ASSERT_EQ(answered[static_cast<std::size_t>(i)], i % 81 + 1);
    EXPECT_LT(here() - deepest, StackBytes);
    EXPECT_TRUE(window.fraAction.Enabled());
    ClickField(40);
    EXPECT_EQ(Grid().Index(), 40);
}

} // namespace
} // namespace tessarin
