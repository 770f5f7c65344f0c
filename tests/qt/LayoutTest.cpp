// Where the controls lie, what they say, and how the keyboard and a screen reader find them.
#include "WindowFixture.h"

#include <QAccessible>
#include <QMenu>
#include <QRadioButton>

namespace tessarin {
namespace {

class LayoutTest : public WindowTest {
protected:
    // That the control has these numbers, in twips, and its widget the same in pixels.
    void ExpectPlace(Control& control, Control& inside, QRectF place) {
        SCOPED_TRACE(control.Name());
        const Design& design = control.Properties();
        const QWidget& widget = Widget(control.Name());
        EXPECT_EQ(control.Container(), &inside);
        EXPECT_EQ(QRectF(design.Left, design.Top, design.Width, design.Height), place);
        EXPECT_EQ(widget.geometry(), QRectF(place.topLeft() / 15, place.size() / 15).toRect());
        // The window's own controls lie in an area below the menu bar.
        if (&inside == &window)
            EXPECT_EQ(widget.parentWidget()->pos(), QPoint(0, MenuBar().height()));
        else
            EXPECT_EQ(widget.parentWidget(), &Widget(inside.Name()));
    }
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

TEST_F(LayoutTest, FieldsStandInBoxesAGapApart) {
    int k = 0;
    for (const double top : {420, 1020, 1620, 2370, 2970, 3570, 4320, 4920, 5520})
        for (const double left : {300, 900, 1500, 2250, 2850, 3450, 4200, 4800, 5400})
            ExpectPlace(window.lblField(++k), window, {left, top, 600, 600});
    EXPECT_TRUE(Widget("lblField(81)").isVisible());
    EXPECT_FALSE(Widget("lblField(0)").isVisible());
    EXPECT_FALSE(window.lblField.Has(82));
}

TEST_F(LayoutTest, PanelsRepeatThePadAndTheSideColumnStandsBesideThem) {
    auto& w = window;
    ExpectPlace(w.lblFile, w, {300, 120, 8535, 255});
    ExpectPlace(w.fraNumPad, w, {6150, 420, 2400, 3150});
    ExpectPlace(w.fraAction, w, {6150, 3690, 2400, 2430});
    ExpectPlace(w.fraInfo, w, {8790, 420, 2535, 3375});
    ExpectPlace(w.lblInfo, w.fraInfo, {240, 360, 2055, 2655});
    ExpectPlace(w.fraChill, w, {8790, 3900, 2535, 2175});
    ExpectPlace(w.fraRotor, w.fraChill, {1320, 960, 975, 975});
    ExpectPlace(w.ctlRotor1, w.fraRotor, {247.5, 247.5, 480, 480});
    constexpr int Keys[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 0, 10};
    Control* const actions[] = {
        &w.btnNextFree,      &w.btnNextFreeAuto, &w.btnSolve, &w.btnGoBack, &w.btnGoBackToFreedom,
        &w.btnNextFreeValue, &w.lblDeadEnd,      &w.btnInfo,  &w.lblWinner};
    for (int i = 0; i < 12; ++i) {
        const QRect place(150 + 750 * (i % 3), 150 + 750 * (i / 3), 600, 600);
        ExpectPlace(w.btnNumPad(Keys[i]), w.fraNumPad, place);
        if (i < 9) ExpectPlace(*actions[i], w.fraAction, place);
    }
    ExpectPlace(w.optChill(0), w.fraChill, {1320, 240, 855, 255});
    for (int i = 1; i <= 5; ++i)
        ExpectPlace(w.optChill(i), w.fraChill, {240, 360.0 * i - 120, 855, 255});
    ExpectPlace(w.optChill(6), w.fraChill, {1320, 600, 855, 255});
}

TEST_F(LayoutTest, WindowIsAsWideAsItsColumnsAndItsBorderIsFixed) {
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

TEST_F(LayoutTest, ControlsSayWhatTheyAreFor) {
    QStringList texts;
    for (const auto* const button : form->findChildren<QAbstractButton*>()) {
        const QString name = button->objectName();
        if (!name.startsWith("btn") && !name.startsWith("opt")) continue;
        texts << button->text() + "=" + button->toolTip();
        if (name.startsWith("opt")) continue;
        EXPECT_EQ(button->font().family(), "Arial");
        const int points = name.startsWith("btnNumPad") ? 20 : 14;
        EXPECT_NEAR(button->font().pixelSize(), points / 0.75, 1);
    }
    texts.sort();
    EXPECT_EQ(texts.join("; ").toStdString(),
              "0=; 0=ms; 100=ms; 1=1; 200=ms; 2=2; 3=3; 400=ms; 4=4; 5=5; 6=6; 7=7; 800=ms; 8=8; "
              "9=9; <<=go back to last field with freedom; <=go back to previous field; "
              ">=goto next free field; >I=goto next free field and fill value in; C=clear; "
              "F=next free value; I=show/hide fild info; Quiet=only show result; "
              "S=solve the sudoku; Step=stop after every move / continue with solve; X=locke");
    EXPECT_EQ(Widget("lblDeadEnd").toolTip() + Widget("lblWinner").toolTip(), "dead endwinner");
    EXPECT_EQ(window.lblDeadEnd.Caption() + window.lblWinner.Caption(), "");
    EXPECT_EQ(window.fraInfo.Caption() + window.fraChill.Caption(), "FieldInfoChillout");
    EXPECT_TRUE(dynamic_cast<QRadioButton&>(Widget("optChill(1)")).isChecked());
    Enter(12, {5});
    for (const auto& [name, spoken] : {std::pair{"btnGoBack", "go back to previous field"},
                                       {"lblWinner", "winner"},
                                       {"lblField(12)", "row 2, column 3: 5"}})
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&Widget(name))->text(QAccessible::Name),
                  spoken);
}

TEST_F(LayoutTest, MenusStandInTheirOrder) {
    EXPECT_EQ(Text(MenuBar().actions()).toStdString(),
              "mnuFile File {mnuFileImportCSV Import; mnuFileExportCSV Export; mnuSplit0 -; "
              "mnuFileQuit Quit; } "
              "mnuEdit Edit {mnuEditClear Clear {mnuEditClearFree Free; mnuEditClearAll All; } "
              "mnuEditLockAll Lock All {mnuEditLockAllSet Set; mnuEditLockClear Clear; } } "
              "mnuView View {mnuViewFreedom Freedom; mnuSplit2 -; mnuViewGroups Groups; "
              "mnuViewNeighbours Neighbours; } mnuHelp ? {mnuAbout About; } ");
}

TEST_F(LayoutTest, TabKeyReadsThePanelsAndLeavesOutWhatCannotBeSeen) {
    Click("btnInfo");
    Widget("btnNumPad(1)").setFocus();
    QStringList texts; // an empty field has no lock key
    for (int i = 0; i < 20; ++i, Key(Qt::Key_Tab))
        texts << dynamic_cast<QAbstractButton&>(*form->focusWidget()).text();
    EXPECT_EQ(texts.join(' ').toStdString(), "1 2 3 4 5 6 7 8 9 C 0 > >I S < << F I 0 1");
}

} // namespace
} // namespace tessarin
