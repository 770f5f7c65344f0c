// A user who does anything at any moment, also while a command is under way.
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <set>

namespace tessarin {
namespace {

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* const value = std::getenv(name);
    return value != nullptr ? static_cast<unsigned>(std::atoi(value)) : otherwise;
}

// One window's life; TestBody is never run.
class StressedWindow : public WindowTest {
public:
    // Names of menu entries and controls; a file dialog is answered with the file after the blank.
    static inline const QStringList Commands =
        QString("mnuFileImportCSV easy-1.csv,mnuFileImportCSV hard-1.csv,mnuFileImportCSV bad.csv,"
                "mnuFileImportCSV missing,mnuFileImportCSV out.csv,mnuFileImportCSV .,"
                "mnuFileExportCSV out.csv,mnuEditClearFree,mnuEditClearAll,mnuEditLockAllSet,"
                "mnuEditLockClear,mnuViewFreedom,mnuViewGroups,mnuViewNeighbours,mnuAbout,"
                "lblDeadEnd,lblField(77),btnNumPad(5),btnNumPad(10),btnNextFreeAuto,"
                "btnGoBackToFreedom,btnSolve,btnInfo,optChill(0),optChill(6),mnuFileQuit,close")
            .split(',');

    explicit StressedWindow(std::function<int(int)> below) : Below(std::move(below)) {
        Unexpected = [this](QDialog& dialog) { AnswerBox(dialog); };
        File("bad.csv", "Index;Value;Locked\r\n1;2;1\r\n99;1;1\r\n2;x;1");
        window.SetInfoVisible(true);
        window.optChill.Click = [this, click = window.optChill.Click](int index) {
            mbPaceChanged = true;
            click(index);
        };
    }

    void TestBody() override {}
    bool Alive() const { return !platform.Closed(); }

    void Load(const char* puzzle) {
        goGame->FileImportCSV(std::string(TESSARIN_PUZZLES "/") + puzzle);
        window.RefreshAll();
    }

    void Do(const QString& command) {
        const QString name = command.section(' ', 0, 0), file = command.section(' ', 1);
        const QString puzzle = TESSARIN_PUZZLES "/" + file;
        mFile = QFile::exists(puzzle) ? puzzle : folder.filePath(file);
        if (auto* const entry = form->findChild<QAction*>(name))
            entry->trigger();
        else if (name == "close")
            form->close();
        else
            ClickAnywhere(Widget(name.toStdString()));
    }

    // Starts `outer` and does `inner` at its pump number `pump`. Whether it lasted so long.
    bool DoNested(const QString& outer, const QString& inner, int pump) {
        int count = 0;
        platform.AtPump = [&] {
            if (++count == pump) Do(inner);
        };
        Do(outer);
        platform.AtPump = nullptr;
        return count >= pump;
    }

    void ExpectToSolve() {
        if (!Alive()) return;
        Do("optChill(0)");
        Load("nearly-complete.csv");
        Do("btnSolve");
        EXPECT_TRUE(Grid().IsWinner());
        ExpectInOrder();
    }

    // Anything; other things may happen before it has ended.
    void DoSomething() {
        ++mlDepth;
        if (!platform.AtPump) // which may be running just now
            platform.AtPump = [this] {
                if (mlDepth > 2 || Below(300) != 0) return;
                mbInterfered = true;
                DoSomething();
            };
        const int what = Below(100);
        if (what < 70) {
            static const QRegularExpression fields("^lblField"), others("^(btn|opt|lblDeadEnd)");
            const auto widgets = form->findChildren<QWidget*>(what < 35 ? fields : others);
            ClickAnywhere(*widgets[Below(static_cast<int>(widgets.size()))]);
        } else if (what < 85) {
            Do(Commands[Below(15)]);
        } else if (what < 96) {
            constexpr Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Space,   Qt::Key_Return,
                                        Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Down};
            Key(keys[Below(6)]);
        } else if (what < 99) {
            for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
                QEvent event(type);
                QApplication::sendEvent(form, &event);
            }
        } else if (Below(8) == 0) {
            form->close();
        }
        --mlDepth;
    }

    // What holds when nothing runs.
    void ExpectInOrder() {
        if (!Alive()) return;
        EXPECT_TRUE(window.mnuFile.Enabled() && window.mnuEdit.Enabled() &&
                    window.mnuView.Enabled());
        EXPECT_TRUE(window.fraAction.Enabled() && window.fraNumPad.Enabled());
        EXPECT_FALSE(window.ViewRunning() || window.ctlRotor1.Running());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        // Fields that changed while a solve was quiet are not repainted by leaving quiet mode.
        if (std::exchange(mbPaceChanged, false)) window.RefreshAll();
        std::set<std::pair<int, int>> held;
        int empty = 0;
        bool twice = false;
        for (const auto& field : Grid().Items) {
            const int value = field->Value();
            EXPECT_EQ(window.lblField(field->Index).Caption(),
                      value == 0 ? "" : std::to_string(value))
                << "field " << field->Index;
            empty += value == 0 ? 1 : 0;
            for (const int group : field->InGroups)
                twice |= value != 0 && !held.emplace(group, value).second;
        }
        // A value that is loaded or given back may meet one that was entered in the meantime.
        EXPECT_TRUE(!twice || mbInterfered);
        if (twice) Load("easy-1.csv");
        mbInterfered = false;
        EXPECT_EQ(Grid().FreeCount(), empty);
        const KeyedNumbers history = goGame->Play->History.value_or(KeyedNumbers());
        EXPECT_EQ(std::set<int>(history.begin(), history.end()).size(),
                  static_cast<std::size_t>(history.Count()));
    }

private:
    void ClickAnywhere(QWidget& widget) {
        if (widget.isVisible()) Click(widget, {Below(widget.width()), Below(widget.height())});
    }

    void AnswerBox(QDialog& dialog) {
        if (Below(4) == 1) return dialog.reject();
        if (auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit")) {
            name->setText(mFile);
            QMetaObject::invokeMethod(&dialog, "accept");
            if (dialog.isVisible()) dialog.reject(); // it has refused the name
            return;
        }
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        auto* button = box.button(Below(5) == 1 ? QMessageBox::No : QMessageBox::Yes);
        if (button == nullptr) button = box.button(QMessageBox::Ok);
        Click(*button, {5, 5});
    }

    std::function<int(int)> Below; ///< what happens: a number from 0 to below its argument
    QString mFile;
    int mlDepth = 0;
    bool mbPaceChanged = false;
    bool mbInterfered = false; // something was done in the middle of something else
};

// Opens a window unless one is open. One lives at a time.
void Renew(std::unique_ptr<StressedWindow>& window, std::function<int(int)> below) {
    if (window && window->Alive()) return;
    window.reset();
    window = std::make_unique<StressedWindow>(std::move(below));
}

TEST(StressTest, AnyCommandAtAnyPumpOfAnotherLeavesAWindowThatSolves) {
    // The pumps of one status pass are alike, so that a step of this size meets every kind of pump
    // in some case; 1 meets every single one.
    const int step = static_cast<int>(FromEnvironment("TESSARIN_NESTED_STEP", 193));
    int offset = 0;
    std::unique_ptr<StressedWindow> window;
    for (const auto& [pace, outer] : {std::pair{"optChill(1)", "btnSolve"},
                                      {"optChill(0)", "btnSolve"},
                                      {"optChill(6)", "btnSolve"},
                                      {"optChill(1)", "mnuViewFreedom"},
                                      {"optChill(1)", "mnuViewGroups"},
                                      {"optChill(1)", "mnuViewNeighbours"},
                                      {"optChill(1)", "mnuFileImportCSV hard-1.csv"}})
        for (const QString& inner : StressedWindow::Commands) {
            bool lasted = true;
            for (int pump = offset++ % step + 1; lasted; pump += step) {
                SCOPED_TRACE(inner.toStdString() + " in " + outer + " at pace " + pace + ", pump " +
                             std::to_string(pump));
                Renew(window, [](int count) { return count / 2; });
                window->Load("nearly-complete.csv");
                window->Do(pace);
                lasted = window->DoNested(outer, inner, pump);
                window->ExpectInOrder();
                window->ExpectToSolve();
                if (testing::Test::HasFailure()) return;
            }
        }
}

TEST(StressTest, RandomUserLeavesTheWindowInOrder) {
    const unsigned seed = FromEnvironment("TESSARIN_MONKEY_SEED", 20220429);
    std::mt19937 random(seed);
    std::unique_ptr<StressedWindow> window;
    const unsigned events = FromEnvironment("TESSARIN_MONKEY_EVENTS", 1500);
    for (unsigned i = 0; i < events && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i) + " from seed " + std::to_string(seed));
        Renew(window,
              [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); });
        window->DoSomething();
        QApplication::processEvents();
        window->ExpectInOrder();
    }
}

// Every pump brings another click, far more than the stack could hold nested in one another.
TEST_F(WindowTest, FloodOfClicksDuringASolveIsAnsweredToTheLastOne) {
    constexpr int Clicks = 20'000;
    constexpr std::uintptr_t StackBytes = 1 << 20;
    std::vector<int> answered;
    std::uintptr_t deepest = UINTPTR_MAX;
    const auto here = [] { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); };
    window.lblField.Click = [&, click = window.lblField.Click](int index) {
        answered.push_back(index);
        deepest = std::min(deepest, here());
        click(index);
    };
    int sent = 0;
    platform.AtPump = [&] {
        if (sent < Clicks) window.lblField(sent++ % 81 + 1).RaiseClick();
    };
    Click("btnSolve");
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

TEST_F(WindowTest, ClicksPastTheBoundAreJudgedWhenTheirTurnComes) {
    int clicks = 0, depth = 0;
    window.btnInfo.Click = [&] {
        window.btnInfo.SetEnabled(++clicks < 2);
        throw std::out_of_range("a command that fails");
    };
    for (const bool closes : {false, true}) {
        window.lblWinner.Click = [&] { // until no further click is let in
            if (++depth < 16) return window.lblWinner.RaiseClick();
            for (int i = 0; i < 4; ++i)
                window.btnInfo.RaiseClick();
            EXPECT_EQ(clicks, closes ? 2 : 0);
            window.lblWinner.SetVisible(false);
            window.lblWinner.RaiseClick();
            if (closes) form->close();
        };
        window.lblWinner.RaiseClick();
        EXPECT_EQ(std::exchange(depth, 0), 16);
        EXPECT_EQ(clicks, 2);
        window.btnInfo.SetEnabled(true);
        window.lblWinner.SetVisible(true);
    }
}

} // namespace
} // namespace tessarin
