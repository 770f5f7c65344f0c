// The window: places in pixels, size, menus, texts, what a screen reader finds, activation and
// closing.
#include "QtFixture.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QWindow>

namespace tessarin {
namespace {

class WindowTest : public QtFixture, public testing::WithParamInterface<const char*> {
protected:
    // All entries, with submenus in brackets.
    QString Text(const QList<QAction*>& actions) {
        QString text;
        for (const QAction* const action : actions) {
            text += (action->isSeparator() ? "|" : action->text()) + " ";
            if (action->menu()) text += "{" + Text(action->menu()->actions()) + "} ";
        }
        return text;
    }
};

TEST_F(WindowTest, TwipsBecomePixelsAndContainersBecomeParents) {
    for (const Control* const control : std::initializer_list<const Control*>{
             &window.lblField(1), &window.lblField(81), &window.fraNumPad, &window.btnSolve,
             &window.lblInfo, &window.ctlRotor1}) {
        const QRectF place(control->Left(), control->Top(), control->Width(), control->Height());
        const QWidget& widget = Widget(control->Name());
        EXPECT_EQ(widget.geometry(), QRectF(place.topLeft() / 15, place.size() / 15).toRect());
        // The window's own controls lie in an area below the menu bar.
        if (control->Container() == &window)
            EXPECT_EQ(widget.parentWidget()->pos(), QPoint(0, MenuBar().height()));
        else
            EXPECT_EQ(widget.parentWidget(), &Widget(control->Container()->Name()));
    }
    EXPECT_FALSE(Widget("lblField(0)").isVisible());
}

TEST_F(WindowTest, WindowIsAsWideAsItsColumnsAndItsBorderIsFixed) {
    const int narrow = form->frameGeometry().width();
    EXPECT_NEAR(narrow, 8850 / 15, 2); // a thin frame leaves an empty strip
    EXPECT_EQ(form->frameGeometry().height(), 7170 / 15);
    for (const bool wide : {false, true, false}) {
        window.SetInfoVisible(wide);
        EXPECT_EQ(form->frameGeometry().width(), narrow + (wide ? 2775 / 15 : 0));
        for (const char* const name : {"fraInfo", "fraChill"}) {
            EXPECT_EQ(Widget(name).isVisible(), wide);
            const QRect place(Widget(name).mapTo(form, QPoint()), Widget(name).size());
            EXPECT_EQ(form->rect().contains(place), wide);
        }
    }
    EXPECT_EQ(form->windowTitle(), "Velmora Sudoku Solver");
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(WindowTest, ControlsHaveTheirTextsAndFonts) {
    using Row = std::tuple<const char*, const char*, const char*, int, const char*>;
    for (const auto& [name, text, toolTip, pixels, spoken] :
         {Row{"btnNumPad(10)", "X", "locke", 27, "locke"},
          {"btnNextFree", ">", "goto next free field", 19, "goto next free field"},
          {"optChill(2)", "100", "ms", 10, "pause 100 milliseconds"}}) {
        const auto& button = dynamic_cast<QAbstractButton&>(Widget(name));
        EXPECT_EQ(button.text(), text);
        EXPECT_EQ(button.toolTip(), toolTip);
        EXPECT_EQ(button.font().pixelSize(), pixels);
        EXPECT_EQ(button.accessibleName(), spoken);
    }
    EXPECT_EQ(Widget("btnSolve").font().family(), "Arial");
    EXPECT_EQ(MenuBar().font().pixelSize(), 12);
    At(12).SetValue(5);
    for (const auto& [name, role, spoken] :
         {std::tuple{"lblWinner", QAccessible::StaticText, "winner: not lit"},
          {"fraChill", QAccessible::Grouping, "Chillout"},
          {"lblField(12)", QAccessible::StaticText, "row 2, column 3: 5"}}) {
        auto* const heard = QAccessible::queryAccessibleInterface(&Widget(name));
        EXPECT_EQ(heard->text(QAccessible::Name), spoken);
        EXPECT_EQ(heard->role(), role) << name;
    }
    EXPECT_EQ(Text(MenuBar().actions()).toStdString(),
              "File {Import Export | Quit } Edit {Clear {Free All } Lock All {Set Clear } } "
              "View {Freedom | Groups Neighbours } ? {About } ");
}

TEST_F(WindowTest, ReturningFromAnotherWindowActivatesButNotFromAnOwnBox) {
    EXPECT_EQ(platform.Activations, 1);
    Script("answer OK & menu mnuAbout & activate");
    EXPECT_EQ(platform.Activations, 1);
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Activate();
    EXPECT_EQ(platform.Activations, 2);
    EXPECT_EQ(form->windowHandle()->type(), Qt::Window);
    EXPECT_TRUE(form->isVisible());
}

// A view that sleeps, a question and a file dialog.
INSTANTIATE_TEST_SUITE_P(Commands, WindowTest,
                         testing::Values("mnuViewGroups", "mnuEditClearAll", "mnuFileImportCSV"));

TEST_P(WindowTest, TheProgramEndsSoonWhenClosedInACommand) {
    platform.ReallySleeps = true;
    QElapsedTimer sinceClose;
    const auto close = [&] {
        if (form->close() && !sinceClose.isValid()) sinceClose.start();
    };
    Unexpected = [&](QDialog&) { close(); };
    platform.AtPump = [&] {
        if (window.lblField(1).BackColor() == 0xFFFF) close();
    };
    bool ended = false;
    QTimer::singleShot(1, form, [&] {
        Script(std::string("set 1 5 & menu ") + GetParam());
        ended = true;
    });
    QApplication::exec();
    EXPECT_TRUE(ended);
    EXPECT_LT(sinceClose.elapsed(), 1000);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(At(1).Value(), 5) << "the question was not answered";
    EXPECT_EQ(window.lblFile.Caption(), "");
}

TEST_F(WindowTest, PumpsAreSkippedOnlyShortlyAfterOthers) {
    int handled = 0, pumps = 0;
    const auto pumped = [&](Pump pump) {
        QMetaObject::invokeMethod(
            form, [&] { ++handled; }, Qt::QueuedConnection);
        platform.PumpEvents(pump);
        return std::exchange(handled, 0) > 0 ? 1 : 0;
    };
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(pumped(Pump::Now));
        EXPECT_TRUE(pumped(Pump::WhenDue)) << "the first one after it";
    }
    for (int i = 0; i < 800; ++i)
        pumps += pumped(Pump::WhenDue);
    EXPECT_LE(pumps, 100);
    QTest::qSleep(1);
    while (pumped(Pump::WhenDue) == 0)
        EXPECT_LE(++pumps, 110) << "due after a millisecond";
}

TEST_F(WindowTest, ThePlatformOutlivesItsForm) {
    {
        qt::QtPlatform machine;
        qt::QtToolkit kit(machine);
        frmTessarin(kit).Show();
        EXPECT_EQ(&Platform::Current(), &machine);
        machine.LockWindowUpdate(1);
        EXPECT_EQ(machine.GetWindowLongA(1, -20), 0);
    }
    EXPECT_EQ(Platform::Current().ProgramFolder(), ".") << "no platform is current";
}

} // namespace
} // namespace tessarin
