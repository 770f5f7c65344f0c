// The widgets: their places in pixels, the window's size, menus, fonts, the keyboard's way through
// them, and what a screen reader finds.
#include "QtFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMenu>

namespace tessarin {
namespace {

class WidgetsTest : public QtFixture {
protected:
    // All entries with their names; what lies below one stands in brackets.
    QString Text(const QList<QAction*>& actions) {
        QString text;
        for (const QAction* const action : actions) {
            text += action->objectName() + " " + (action->isSeparator() ? "-" : action->text());
            text += action->menu() ? " {" + Text(action->menu()->actions()) + "} " : "; ";
        }
        return text;
    }
};

TEST_F(WidgetsTest, TwipsBecomePixelsAndContainersParents) {
    Control* const controls[] = {&window.lblFile,     &window.lblField(1), &window.lblField(81),
                                 &window.fraNumPad,   &window.btnSolve,    &window.fraAction,
                                 &window.lblInfo,     &window.fraInfo,     &window.ctlRotor1,
                                 &window.optChill(6), &window.fraChill,    &window.fraRotor};
    for (const Control* const control : controls) {
        SCOPED_TRACE(control->Name());
        const QRectF place(control->Left(), control->Top(), control->Width(), control->Height());
        const QWidget& widget = Widget(control->Name());
        EXPECT_EQ(widget.geometry(), QRectF(place.topLeft() / 15, place.size() / 15).toRect());
        // The window's own controls lie in an area below the menu bar.
        if (control->Container() == &window)
            EXPECT_EQ(widget.parentWidget()->pos(), QPoint(0, MenuBar().height()));
        else
            EXPECT_EQ(widget.parentWidget(), &Widget(control->Container()->Name()));
    }
    EXPECT_TRUE(Widget("lblField(81)").isVisible());
    EXPECT_FALSE(Widget("lblField(0)").isVisible());
}

TEST_F(WidgetsTest, WindowIsAsWideAsItsColumnsAndItsBorderIsFixed) {
    const int narrow = form->frameGeometry().width();
    EXPECT_NEAR(narrow, 8850 / 15, 2); // a thin frame leaves a strip beside the controls unused
    EXPECT_EQ(form->frameGeometry().height(), 7170 / 15);
    for (const bool wide : {false, true, true, false}) {
        window.SetInfoVisible(wide);
        EXPECT_EQ(window.Width(), wide ? 11625 : 8850);
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
}
TEST_F(WidgetsTest, ControlsHaveTheirTextsAndFonts) {
    for (const auto& [name, text, toolTip, pixels] :
         {std::tuple{"btnNumPad(10)", "X", "locke", 27},
          {"btnNextFreeAuto", ">I", "goto next free field and fill value in", 19}}) {
        const auto& button = dynamic_cast<QAbstractButton&>(Widget(name));
        EXPECT_EQ(button.text(), text);
        EXPECT_EQ(button.toolTip(), toolTip);
        EXPECT_EQ(button.font().family(), "Arial");
        EXPECT_EQ(button.font().pixelSize(), pixels);
    }
    EXPECT_EQ(Widget("optChill(2)").font().pixelSize(), 10);
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(Widget("optChill(1)")).isChecked());
    At(12).SetValue(5);
    for (const auto& [name, spoken] : {std::pair{"btnGoBack", "go back to previous field"},
                                       {"lblWinner", "winner: not lit"},
                                       {"fraChill", "Chillout"},
                                       {"lblField(12)", "row 2, column 3: 5"}})
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&Widget(name))->text(QAccessible::Name),
                  spoken);
}

TEST_F(WidgetsTest, MenusStandInTheirOrder) {
    EXPECT_EQ(Text(MenuBar().actions()).toStdString(),
              "mnuFile File {mnuFileImportCSV Import; mnuFileExportCSV Export; mnuSplit0 -; "
              "mnuFileQuit Quit; } "
              "mnuEdit Edit {mnuEditClear Clear {mnuEditClearFree Free; mnuEditClearAll All; } "
              "mnuEditLockAll Lock All {mnuEditLockAllSet Set; mnuEditLockClear Clear; } } "
              "mnuView View {mnuViewFreedom Freedom; mnuSplit2 -; mnuViewGroups Groups; "
              "mnuViewNeighbours Neighbours; } mnuHelp ? {mnuAbout About; } ");
}

} // namespace
} // namespace tessarin
