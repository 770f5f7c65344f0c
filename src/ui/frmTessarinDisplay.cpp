// Painting: fields, information panel, number pad.
#include "support/modWait.h"
#include "ui/Colors.h"
#include "ui/FieldLook.h"
#include "ui/frmTessarin.h"

namespace tessarin {

namespace {

// What a screen reader says of a field.
std::string SpokenField(const Fields& grid, const Field& field) {
    const int n = grid.Numbers();
    std::string text = "row " + std::to_string((field.Index - 1) / n + 1) + ", column " +
                       std::to_string((field.Index - 1) % n + 1) + ": " +
                       (field.Value() == 0 ? "empty" : std::to_string(field.Value()));
    return field.Locked() ? text + ", locked" : text;
}

} // namespace

void frmTessarin::PaintField(int index, bool neighbourMark, bool groupMark) {
    Fields& grid = *moGame->Fields;
    // This may count the status and pump events meanwhile; everything else is read after it, so
    // that what is painted is what the field is now.
    const int deadField = grid.DeadField();
    const int idx = index > 0 ? index : grid.Index();
    if (!grid.Items.Has(idx) || !lblField.Has(idx)) return;
    const auto field = grid.Items.Item(idx);
    const FieldState state{.Value = field->Value(),
                           .IsCursor = idx == grid.Index(),
                           .IsDead = idx == deadField,
                           .IsLocked = field->Locked(),
                           .IsMarked = neighbourMark || groupMark};
    lblInfo.SetCaption(InfoText(*field, state.IsCursor, state.IsDead));
    Label& label = lblField(idx);
    Apply(LookOf(state), label);
    label.SetAccessibleName(SpokenField(grid, *field));
    if (Solving && ChillDelay > 0) Wait(ChillDelay);
}

std::string frmTessarin::InfoText(const Field& field, bool isCursor, bool isDead) const {
    const auto yesNo = [](bool flag) { return std::string(flag ? "True" : "False"); };
    const std::string lines[] = {
        "Index=" + std::to_string(field.Index),
        "Value=" + std::to_string(field.Value()),
        "",
        "Freedom=" + std::to_string(field.Freedom()),
        "FreeValuesList=" + field.FreeValuesList(),
        "",
        "IsCursor=" + yesNo(isCursor),
        "IsLocked=" + yesNo(field.Locked()),
        "IsEmpty=" + yesNo(field.Value() == 0),
        "IsDeadCell=" + yesNo(isDead),
        "",
        "Retries=" + std::to_string(moGame->Play->Retries),
        "DeadCount=" + std::to_string(moGame->Fields->DeadCount()),
    };
    std::string text;
    for (const auto& line : lines) {
        if (&line != lines) text += "\r\n";
        text += line;
    }
    return text;
}

void frmTessarin::PaintFreedoms() {
    for (const auto& field : moGame->Fields->Items)
        if (field->Value() == 0 && lblField.Has(field->Index))
            Apply(LookOfFreedom(field->Freedom()), lblField(field->Index));
}

// Each key gets its final state once: hiding and showing keys is what costs.
void frmTessarin::RefreshNumPad() {
    const auto cursor = moGame->Fields->Cursor;
    if (!cursor) return;
    const bool locked = cursor->Locked();
    const std::string freeValues = cursor->FreeValuesList();
    for (int key = 0; key <= 11; ++key) {
        const bool isLockKey = key == 10;
        const bool isDigit = key >= 1 && key <= 9;
        btnNumPad(key).SetEnabled(isLockKey ? locked || cursor->Value() != 0 : !locked);
        btnNumPad(key).SetVisible(!isDigit ||
                                  freeValues.find(std::to_string(key) + ";") != std::string::npos);
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

void frmTessarin::SetViewRunning(bool running) {
    mbViewRunning = running;
    for (MenuItem* const menu : {&mnuFile, &mnuEdit, &mnuView})
        menu->SetEnabled(!running);
}

} // namespace tessarin
