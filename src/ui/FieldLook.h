// SPDX-License-Identifier: MIT
// What the label of a field looks like.
#pragma once

#include "toolkit/Controls.h"
#include "ui/Colors.h"

#include <string>

namespace tessarin {

/// The width and height of a field's label, and of a key of the number pad, in twips.
constexpr int FieldSide = 600;
constexpr Bounds FieldSize{.Width = FieldSide, .Height = FieldSide};

/// The font of values, and of the labels before they show a field.
inline const FontStyle FieldFont{.Name = "Arial Black", .Size = 20};

/// What the look of a field depends on.
struct FieldState {
    int Row = 0;
    int Column = 0;
    int Value = 0;
    bool IsCursor = false;
    bool IsDead = false;
    bool IsLocked = false;
    bool IsMarked = false; ///< by a view
};

struct FieldLook {
    std::string Caption = {};
    FontStyle TextFont = {};
    Color BackColor = WindowBackground;
    Color ForeColor = ButtonText;
    bool operator==(const FieldLook&) const = default;
};

/// The look of a field with its value. The colour of a mark wins over that of a dead field, and
/// both win over the cursor's.
FieldLook LookOf(const FieldState& field);

/// What a screen reader says of the field, with everything that the colours tell: "row 2, column 3:
/// 5, locked, current".
std::string SpokenName(const FieldState& field);

/// The look of an empty field that shows how many values are free for it.
FieldLook LookOfFreedom(int freedom);

void Apply(const FieldLook& look, Label& label);

} // namespace tessarin
