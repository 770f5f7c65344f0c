// SPDX-License-Identifier: MIT
#include "ui/FieldLook.h"

namespace tessarin {

FieldLook LookOf(const FieldState& field) {
    FieldLook look{.TextFont = FieldFont};
    if (field.IsCursor) look.BackColor = Green;
    if (field.IsDead) look.BackColor = Red;
    if (field.IsMarked) look.BackColor = Yellow;
    if (field.IsLocked) look.ForeColor = Red;
    if (field.Value != 0) look.Caption = std::to_string(field.Value);
    return look;
}

std::string SpokenName(const FieldState& field) {
    std::string text = "row " + std::to_string(field.Row) + ", column " +
                       std::to_string(field.Column) + ": " +
                       (field.Value == 0 ? "empty" : std::to_string(field.Value));
    if (field.IsLocked) text += ", locked";
    if (field.IsCursor) text += ", current";
    if (field.IsDead) text += ", dead";
    if (field.IsMarked) text += ", marked";
    return text;
}

FieldLook LookOfFreedom(int freedom) {
    FieldLook look{.Caption = std::to_string(freedom),
                   .TextFont = {.Name = "Arial", .Size = 12, .Italic = true},
                   .BackColor = Yellow,
                   .ForeColor = Red};
    if (freedom == 1) look.BackColor = Green;
    if (freedom == 0) {
        look.BackColor = Red;
        look.ForeColor = WindowBackground;
    }
    return look;
}

void Apply(const FieldLook& look, Label& label) {
    label.SetFont(look.TextFont);
    label.SetBackColor(look.BackColor);
    label.SetForeColor(look.ForeColor);
    label.SetCaption(look.Caption);
}

} // namespace tessarin
