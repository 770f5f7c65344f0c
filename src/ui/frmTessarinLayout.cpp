// The layout of the window, for the dimension that the grid has at start-up.
#include "model/Fields.h"
#include "platform/Platform.h"
#include "ui/Colors.h"
#include "ui/FieldLook.h"
#include "ui/frmTessarin.h"

#include <algorithm>

namespace tessarin {

namespace {

constexpr int BoxGap = FieldSide / 4;
constexpr int PadPitch = FieldSide + BoxGap;

// The start of the row or column `position` (from 1), with gaps between the boxes.
float GridOffset(int position, int dimension) {
    const int offset = position * FieldSide + ((position - 1) / dimension - 2) * FieldSide / 4;
    return static_cast<float>(offset);
}

} // namespace

void frmTessarin::LayoutWindow() {
    CreateFieldLabels();
    PumpEvents(Pump::Now);
    CreateNumPad();
    PumpEvents(Pump::Now);
    ArrangeActionPanel();
    PumpEvents(Pump::Now);
    ArrangeSideColumn();
    PumpEvents(Pump::Now);
    SetWidth(btnNumPad(3).Left() + fraNumPad.Left() + 1050);
    const Label& last = lblField(moGame->Fields->Count());
    SetHeight(last.Top() + 1650);
}

void frmTessarin::CreateFieldLabels() {
    const int n = moGame->Fields->Numbers();
    const int d = moGame->Fields->Dimension();
    int k = 0;
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c) {
            Label& label = lblField.Load(++k);
            label.SetTop(GridOffset(r, d) + 120);
            label.SetLeft(GridOffset(c, d));
            label.SetVisible(true);
        }
    lblFile.SetLeft(lblField(1).Left());
}

// Three rows of three digits and a fourth row, whatever the dimension.
void frmTessarin::CreateNumPad() {
    const Label& lastOfRow = lblField(moGame->Fields->Numbers());
    fraNumPad.SetLeft(lastOfRow.Left() + 750);
    fraNumPad.SetTop(lastOfRow.Top());

    const auto place = [](CommandButton& button, int row, int column) {
        button.SetTop(static_cast<float>(row * PadPitch + BoxGap));
        button.SetLeft(static_cast<float>(column * PadPitch + BoxGap));
    };
    const auto create = [&](int key, const std::string& caption, const std::string& toolTip,
                            int row, int column) {
        CommandButton& button = btnNumPad.Load(key);
        button.SetCaption(caption);
        button.SetToolTipText(toolTip);
        button.SetVisible(true);
        place(button, row, column);
    };
    for (int i = 1; i <= 9; ++i)
        create(i, std::to_string(i), std::to_string(i), (i - 1) / 3, (i - 1) % 3);
    place(btnNumPad(0), 3, 1);
    create(10, "X", "locke", 3, 2);
    create(11, "C", "clear", 3, 0);
    btnNumPad(11).SetShortcuts("Del; Backspace");
}

// Below the number pad, with the same places for buttons, down to the bottom of the fields.
void frmTessarin::ArrangeActionPanel() {
    const Label& last = lblField(moGame->Fields->Count());
    fraAction.SetLeft(fraNumPad.Left());
    fraAction.SetTop(fraNumPad.Top() + fraNumPad.Height() + 120);
    fraAction.SetWidth(fraNumPad.Width());
    fraAction.SetHeight(last.Top() + last.Height() - fraAction.Top());

    const FontStyle font{.Name = "Arial", .Size = 14};
    const std::pair<Control&, int> places[] = {
        {btnNextFree, 1},        {btnNextFreeAuto, 2},  {btnSolve, 3},   {btnGoBack, 4},
        {btnGoBackToFreedom, 5}, {btnNextFreeValue, 6}, {lblDeadEnd, 7}, {btnInfo, 8},
        {lblWinner, 9}};
    for (const auto& [control, key] : places) {
        control.SetLeft(btnNumPad(key).Left());
        control.SetTop(btnNumPad(key).Top());
        control.SetWidth(FieldSide);
        control.SetHeight(FieldSide);
        control.SetFont(font);
    }
    for (Label* const indicator : {&lblDeadEnd, &lblWinner}) {
        indicator->SetCaption("");
        SetIndicator(*indicator, WindowBackground);
    }
}

void frmTessarin::ArrangeSideColumn() {
    fraInfo.SetTop(fraNumPad.Top());
    fraInfo.SetLeft(fraNumPad.Left() + fraNumPad.Width() + 240);
    fraChill.SetTop(fraInfo.Top() + fraInfo.Height() + 105);
    fraChill.SetLeft(fraInfo.Left());
    fraChill.SetWidth(fraInfo.Width());
    for (const Pace& pace : Paces)
        if (pace.Delay >= 0)
            PaceOption(pace.Caption)
                .SetAccessibleName(std::string("pause ") + pace.Caption + " milliseconds");
    PaceOption("0").Select();
    ctlRotor1.SetLeft((fraRotor.Width() - ctlRotor1.Width()) / 2);
    ctlRotor1.SetTop((fraRotor.Height() - ctlRotor1.Height()) / 2);
}

OptionButton& frmTessarin::PaceOption(std::string_view caption) {
    const auto pace = std::ranges::find(Paces, caption, &Pace::Caption);
    return optChill(static_cast<int>(pace - Paces.begin()));
}

void frmTessarin::SetInfoVisible(bool MyInfoVisible) {
    if (MyInfoVisible == mbInfoVisible) return;
    const float column = fraInfo.Width() + 240;
    SetWidth(Width() + (MyInfoVisible ? column : -column));
    mbInfoVisible = MyInfoVisible;
}

} // namespace tessarin
