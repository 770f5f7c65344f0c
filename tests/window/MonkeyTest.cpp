// A user who does anything at any moment, from a seed.
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

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

std::mt19937& Random() {
    static std::mt19937 random(FromEnvironment("TESSARIN_MONKEY_SEED", 20220429));
    return random;
}

int Below(int count) {
    return static_cast<int>(Random()() % static_cast<unsigned>(count));
}

// One window's life under the monkey; TestBody is never run.
class Monkey : public WindowTest {
public:
    Monkey() {
        Unexpected = [this](QDialog& dialog) { Settle(dialog); };
        spy.AtPump = [this] {
            if (mlDepth < 3 && Below(300) == 0) Act();
        };
        mFiles = {TESSARIN_PUZZLES "/easy-1.csv",
                  TESSARIN_PUZZLES "/hard-1.csv",
                  TESSARIN_PUZZLES "/dead-end.csv",
                  TESSARIN_PUZZLES "/nearly-complete.csv",
                  TESSARIN_PUZZLES,
                  "/nowhere/none.csv",
                  File("bad.csv", "Index;Value;Locked\r\n1;2;1\r\n2;x;1"),
                  folder.filePath("export.csv")};
    }

    void TestBody() override {}

    bool Alive() const { return !platform.Closed(); }

    // Something the user does; other things may happen before it has ended.
    void Act() {
        ++mlDepth;
        const int what = Below(100);
        if (what < 35)
            ClickAnywhere(window.lblField(Below(81) + 1));
        else if (what < 50)
            ClickAnywhere(window.btnNumPad(Below(12)));
        else if (what < 70)
            ClickAnywhere(
                *Pick<Control*>({&window.btnNextFree, &window.btnNextFreeAuto, &window.btnSolve,
                                 &window.btnGoBack, &window.btnGoBackToFreedom,
                                 &window.btnNextFreeValue, &window.btnInfo, &window.lblDeadEnd}));
        else if (what < 75)
            ClickAnywhere(window.InfoVisible() ? static_cast<Control&>(window.optChill(Below(7)))
                                               : window.btnInfo);
        else if (what < 86)
            TriggerMenu();
        else if (what < 96)
            QTest::keyClick(Top(), Pick<Qt::Key>({Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return,
                                                  Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Down}));
        else if (what < 99)
            LeaveAndReturn();
        else if (Below(8) == 0)
            form->close();
        --mlDepth;
    }

    void ExpectInOrder() {
        EXPECT_TRUE(window.mnuFile.Enabled() && window.mnuEdit.Enabled() &&
                    window.mnuView.Enabled());
        EXPECT_TRUE(window.fraAction.Enabled() && window.fraNumPad.Enabled());
        EXPECT_FALSE(window.ctlRotor1.Running());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        // Fields that changed while a solve was quiet are not repainted by leaving quiet mode.
        if (std::exchange(mbPaceChanged, false)) window.RefreshAll();
        std::set<std::pair<int, int>> held;
        int empty = 0;
        for (const auto& field : Grid().Items) {
            const int value = field->Value();
            EXPECT_EQ(window.lblField(field->Index).Caption(),
                      value == 0 ? "" : std::to_string(value))
                << "field " << field->Index;
            empty += value == 0 ? 1 : 0;
            for (const int group : field->InGroups)
                EXPECT_TRUE(value == 0 || held.emplace(group, value).second)
                    << value << " twice in group " << group;
        }
        EXPECT_EQ(Grid().FreeCount(), empty);
        const KeyedNumbers history = goGame->Play->History.value_or(KeyedNumbers());
        EXPECT_EQ(std::set<int>(history.begin(), history.end()).size(),
                  static_cast<std::size_t>(history.Count()));
    }

private:
    template <class T>
    static T Pick(std::initializer_list<T> from) {
        return *(from.begin() + Below(static_cast<int>(from.size())));
    }

    QWindow* Top() {
        QWidget* top = QApplication::activePopupWidget();
        if (top == nullptr) top = QApplication::activeModalWidget();
        return (top != nullptr ? top : form)->windowHandle();
    }

    void ClickAnywhere(Control& control) {
        mbPaceChanged |= control.Container() == &window.fraChill;
        QWidget& widget = Widget(control.Name());
        Click(widget, QPoint(Below(widget.width()), Below(widget.height())));
    }

    void TriggerMenu() {
        auto* const entry = form->findChild<QAction*>(Pick<const char*>(
            {"mnuFileImportCSV", "mnuFileImportCSV", "mnuFileImportCSV", "mnuFileExportCSV",
             "mnuEditClearFree", "mnuEditClearAll", "mnuEditLockAllSet", "mnuEditLockClear",
             "mnuViewFreedom", "mnuViewGroups", "mnuViewNeighbours", "mnuAbout"}));
        entry->trigger();
    }

    void LeaveAndReturn() {
        for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
            QEvent event(type);
            QApplication::sendEvent(form, &event);
        }
    }

    void Settle(QDialog& dialog) {
        if (Below(4) == 0) return dialog.reject();
        if (auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit")) {
            name->setText(mFiles[static_cast<std::size_t>(Below(static_cast<int>(mFiles.size())))]);
            QMetaObject::invokeMethod(&dialog, "accept");
            if (dialog.isVisible()) dialog.reject();
        } else {
            const auto buttons = static_cast<QMessageBox&>(dialog).buttons();
            Click(*buttons[Below(static_cast<int>(buttons.size()))], QPoint(5, 5));
        }
    }

    std::vector<QString> mFiles;
    int mlDepth = 0;
    bool mbPaceChanged = false;
};

TEST(Monkey, LeavesTheWindowInOrder) {
    const unsigned events = FromEnvironment("TESSARIN_MONKEY_EVENTS", 1500);
    RecordProperty("seed", static_cast<int>(FromEnvironment("TESSARIN_MONKEY_SEED", 20220429)));
    std::unique_ptr<Monkey> monkey;
    for (unsigned i = 0; i < events && !HasFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i));
        if (!monkey || !monkey->Alive()) {
            monkey.reset(); // one window at a time
            monkey = std::make_unique<Monkey>();
        }
        monkey->Act();
        QApplication::processEvents();
        if (monkey->Alive()) monkey->ExpectInOrder();
    }
}

} // namespace
} // namespace tessarin
