// SPDX-License-Identifier: MIT
// The layout of the window, for the dimension that the grid has at start-up.
#include "model/Fields.h"
#include "platform/Platform.h"
#include "ui/Colors.h"
#include "ui/FieldLook.h"
#include "ui/frmTessarin.h"

#include <algorithm>

namespace tessarin {

namespace {

constexpr int Margin = FieldSide / 2; // around the grid
constexpr int SpaceForFileName = 120; // above that margin
constexpr int BoxGap = FieldSide / 4;
constexpr int SideColumnGap = 240; // left of it

// The start of the row or column `position` (from 1), with gaps between the boxes.
float GridOffset(int position, int dimension) {
    const int fieldsBefore = position - 1;
    const int gapsBefore = fieldsBefore / dimension;
    return static_cast<float>(Margin + fieldsBefore * FieldSide + gapsBefore * BoxGap);
}

float FieldTop(int row, int dimension) {
    return GridOffset(row, dimension) + SpaceForFileName;
}

// The start of the row or column `position` (from 0) of the number pad.
float PadOffset(int position) {
    constexpr int Pitch = FieldSide + BoxGap;
    return static_cast<float>(position * Pitch + BoxGap);
}

} // namespace

float frmTessarin::SpaceForGrid() {
    constexpr int LastRow = 9;
    constexpr int Dimension = 3;
    constexpr int RimBelow = 30;
    return FieldTop(LastRow, Dimension) + FieldSide + RimBelow;
}

// Pumps after each step, as every long operation of the window does; it is not yet shown.
void frmTessarin::LayoutWindow() {
    CreateFieldLabels();
    PumpEvents(Pump::Now);
    CreateNumPad();
    PumpEvents(Pump::Now);
    ArrangeActionPanel();
    PumpEvents(Pump::Now);
    ArrangeSideColumn();
    PumpEvents(Pump::Now);
    constexpr int FromLastKeyToEdge = FieldSide + BoxGap + Margin;
    SetWidth(fraNumPad.Left() + btnNumPad(3).Left() + FromLastKeyToEdge);
    constexpr int LastRowAndBars = 1650; // the row, a margin, title bar and menu bar
    SetHeight(lblField(moGame->Fields->Count()).Top() + LastRowAndBars);
}

void frmTessarin::CreateFieldLabels() {
    const int n = moGame->Fields->Numbers();
    const int d = moGame->Fields->Dimension();
    int k = 0;
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c) {
            LabelProperties field = lblField.Design;
            field.Place.Left = GridOffset(c, d);
            field.Place.Top = FieldTop(r, d);
            field.Cell = {.Row = r, .Column = c};
            field.Visible = true;
            lblField.Add(++k, field);
        }
    lblFile.SetLeft(lblField(1).Left());
}

// Three rows of three digits and a fourth row, whatever the dimension.
void frmTessarin::CreateNumPad() {
    const Label& lastOfRow = lblField(moGame->Fields->Numbers());
    fraNumPad.SetLeft(lastOfRow.Left() + FieldSide + BoxGap);
    fraNumPad.SetTop(lastOfRow.Top());

    const auto create = [&](int key, const std::string& caption, const std::string& toolTip,
                            int row, int column, const std::string& shortcuts = "") {
        CommandButtonProperties button = btnNumPad.Design;
        button.Place.Left = PadOffset(column);
        button.Place.Top = PadOffset(row);
        button.Caption = caption;
        button.ToolTipText = toolTip;
        button.Shortcuts = shortcuts;
        btnNumPad.Add(key, button);
    };
    for (int i = 1; i <= 9; ++i)
        create(i, std::to_string(i), std::to_string(i), (i - 1) / 3, (i - 1) % 3);
    btnNumPad(0).SetLeft(PadOffset(1));
    btnNumPad(0).SetTop(PadOffset(3));
    create(LockKey, "X", "locke", 3, 2);
    create(ClearKey, "C", "clear", 3, 0, "Del; Backspace");
}

// Below the number pad, with the same places for buttons, down to the bottom of the fields.
void frmTessarin::ArrangeActionPanel() {
    const Label& last = lblField(moGame->Fields->Count());
    fraAction.SetLeft(fraNumPad.Left());
    fraAction.SetTop(fraNumPad.Top() + fraNumPad.Height() + 120);
    fraAction.SetWidth(fraNumPad.Width());
    fraAction.SetHeight(last.Top() + last.Height() - fraAction.Top());

    const std::pair<PlacedControl&, int> places[] = {
        {btnNextFree, 1},        {btnNextFreeAuto, 2},  {btnSolve, 3},   {btnGoBack, 4},
        {btnGoBackToFreedom, 5}, {btnNextFreeValue, 6}, {lblDeadEnd, 7}, {btnInfo, 8},
        {lblWinner, 9}};
    for (const auto& [control, key] : places) {
        control.SetLeft(btnNumPad(key).Left());
        control.SetTop(btnNumPad(key).Top());
    }
    for (Label* const indicator : {&lblDeadEnd, &lblWinner}) {
        indicator->SetCaption("");
        SetIndicator(*indicator, WindowBackground);
    }
}

void frmTessarin::ArrangeSideColumn() {
    fraInfo.SetTop(fraNumPad.Top());
    fraInfo.SetLeft(fraNumPad.Left() + fraNumPad.Width() + SideColumnGap);
    fraChill.SetTop(fraInfo.Top() + fraInfo.Height() + 105);
    fraChill.SetLeft(fraInfo.Left());
    fraChill.SetWidth(fraInfo.Width());
    for (int i = 0; const Pace& pace : Paces) {
        OptionButton& option = optChill(i++);
        if (pace.Delay >= 0)
            option.SetAccessibleName(std::string("pause ") + pace.Caption + " milliseconds");
    }
    PaceOption("0").Select();
    ctlRotor1.SetLeft((fraRotor.Width() - ctlRotor1.Width()) / 2);
    ctlRotor1.SetTop((fraRotor.Height() - ctlRotor1.Height()) / 2);
}

OptionButton& frmTessarin::PaceOption(std::string_view caption) {
    const auto pace = std::ranges::find(Paces, caption, &Pace::Caption);
    // For another caption an index past the last, which throws.
    return optChill(static_cast<int>(pace - Paces.begin()));
}

void frmTessarin::SetInfoVisible(bool MyInfoVisible) {
    if (MyInfoVisible == mbInfoVisible) return;
    const float column = fraInfo.Width() + SideColumnGap;
    SetWidth(Width() + (MyInfoVisible ? column : -column));
    mbInfoVisible = MyInfoVisible;
}

} // namespace tessarin
