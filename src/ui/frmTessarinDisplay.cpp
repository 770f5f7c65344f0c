// SPDX-License-Identifier: MIT
// Painting: fields, information panel, number pad, indicators.
#include "model/Fields.h"
#include "play/Play.h"
#include "support/modWait.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

#include <utility>

namespace tessarin {

void frmTessarin::PaintField(int index, bool neighbourMark, bool groupMark) {
    Fields& grid = *moGame->Fields;
    grid.CountAndPump(); // before everything else is read: the field is painted as it is then
    const int shown = index > 0 ? index : grid.Index();
    if (!grid.Items.Has(shown) || !lblField.Has(shown)) return;
    const Field& field = *grid.Items.Item(shown);
    FieldState state = StateOf(field);
    state.IsMarked = neighbourMark || groupMark;
    lblInfo.SetCaption(InfoText(field, state));
    ShowStateAndCurrent(shown, state);
    // Commands that run in the wait may change the pace or end the solve.
    const auto pause = [this] { return Solving ? ChillDelay : 0; };
    if (pause() > 0) Wait(pause);
}

void frmTessarin::PaintAsNeighbour(int index) {
    PaintField(index, true, false);
}

void frmTessarin::PaintAsGroupMember(int index) {
    PaintField(index, false, true);
}

FieldState frmTessarin::StateOf(const Field& field) const {
    const Fields& grid = *moGame->Fields;
    const int n = grid.Numbers();
    return {.Row = (field.Index - 1) / n + 1,
            .Column = (field.Index - 1) % n + 1,
            .Value = field.Value(),
            .IsCursor = field.Index == grid.Index(),
            .IsDead = field.Index == grid.LastCounts().DeadField,
            .IsLocked = field.Locked()};
}

void frmTessarin::ShowState(int index, const FieldState& state) {
    Apply(LookOf(state), lblField(index));
    lblField(index).SetAccessibleName(SpokenName(state));
}

// Shows the state, and keeps the current label where the cursor is: the arrow keys start at it, and
// the focus and the screen reader follow it.
//
// If this is the field that the cursor has left, the cursor's label becomes current first: a screen
// reader announces a new name only where the focus is, so it announces only the move.
//
// If this is the field that the cursor has reached, a third field may still look current: one that
// was clicked in the middle of this move. That one is shown again, as it is now.
void frmTessarin::ShowStateAndCurrent(int index, const FieldState& state) {
    const Fields& grid = *moGame->Fields;
    if (index == PaintedCurrent && !state.IsCursor) {
        if (grid.Cursor && lblField.Has(grid.Index())) {
            Label& current = lblField(grid.Index());
            current.SetAccessibleName(SpokenName(StateOf(*grid.Cursor)));
            current.MakeCurrent();
        }
        PaintedCurrent = 0;
    }
    ShowState(index, state);
    if (!state.IsCursor) return;
    lblField(index).MakeCurrent();
    const int former = std::exchange(PaintedCurrent, index);
    if (former != index && grid.Items.Has(former))
        ShowState(former, StateOf(*grid.Items.Item(former)));
}

std::string frmTessarin::InfoText(const Field& field, const FieldState& state) const {
    const auto trueFalse = [](bool flag) { return std::string(flag ? "True" : "False"); };
    const std::string lines[] = {
        "Index=" + std::to_string(field.Index),
        "Value=" + std::to_string(field.Value()),
        "",
        "Freedom=" + std::to_string(field.Freedom()),
        "FreeValuesList=" + field.FreeValuesList(),
        "",
        "IsCursor=" + trueFalse(state.IsCursor),
        "IsLocked=" + trueFalse(field.Locked()),
        "IsEmpty=" + trueFalse(field.Value() == 0),
        "IsDeadCell=" + trueFalse(state.IsDead),
        "",
        "Retries=" + std::to_string(moGame->Play->Retries),
        "DeadCount=" + std::to_string(moGame->Fields->DeadCount()),
    };
    std::string text;
    for (const auto& line : lines) {
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

void frmTessarin::PaintFreedoms() {
    for (const auto& field : moGame->Fields->Items) {
        if (field->Value() != 0 || !lblField.Has(field->Index)) continue;
        FieldState state = StateOf(*field);
        state.IsDead = false; // freedom 0 says it
        const FieldLook look = LookOfFreedom(field->Freedom());
        Label& label = lblField(field->Index);
        Apply(look, label);
        label.SetAccessibleName(SpokenName(state) + ", freedom " + look.Caption);
    }
}

// Sets the final state of each key directly: hiding and showing keys is slow. The free values
// are searched as text, so that in a larger grid a free 11 shows the key 1, too.
void frmTessarin::RefreshNumPad() {
    const auto cursor = moGame->Fields->Cursor;
    if (!cursor) return;
    const bool locked = cursor->Locked();
    const std::string freeValues = cursor->FreeValuesList();
    const bool canLock = locked || cursor->Value() != 0;
    for (int key = 0; key <= ClearKey; ++key) {
        btnNumPad(key).SetEnabled(key == LockKey ? canLock : !locked);
        const bool isValue = key >= 1 && key <= 9;
        const bool isFree = freeValues.find(std::to_string(key) + ";") != std::string::npos;
        btnNumPad(key).SetVisible(!isValue || isFree);
    }
    fraNumPad.SetBackColor(locked ? Red : WindowBackground);
}

void frmTessarin::RefreshAll() {
    Fields& grid = *moGame->Fields;
    if (!grid.Cursor) grid.SetIndex(1);
    for (int i = 1; i <= grid.Count(); ++i)
        PaintField(i);
    RefreshNumPad();
}

void frmTessarin::SetIndicator(Label& indicator, Color color) {
    indicator.SetBackColor(color);
    indicator.SetAccessibleName(indicator.ToolTipText() +
                                (color == WindowBackground ? ": not lit" : ": lit"));
}

} // namespace tessarin
