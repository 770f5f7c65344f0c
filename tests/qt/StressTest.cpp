// A user who does anything at any moment, also while a command is under way.
#include "QtFixture.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
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
class StressedWindow : public QtFixture {
public:
    // Names of menu entries; a file dialog is answered with the file after the blank.
    static inline const QStringList Commands =
        QString("mnuFileImportCSV easy-1.csv,mnuFileImportCSV hard-1.csv,mnuFileImportCSV bad.csv,"
                "mnuFileImportCSV missing,mnuFileImportCSV out.csv,mnuFileImportCSV .,"
                "mnuFileExportCSV out.csv,mnuEditClearFree,mnuEditClearAll,mnuEditLockAllSet,"
                "mnuEditLockClear,mnuViewFreedom,mnuViewGroups,mnuViewNeighbours,mnuAbout")
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
        form->findChild<QAction*>(name)->trigger();
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
            Do(Commands[Below(static_cast<int>(Commands.size()))]);
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

} // namespace
} // namespace tessarin
