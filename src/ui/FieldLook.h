// What the label of a field looks like.
#pragma once

#include "toolkit/Control.h"
#include "ui/Colors.h"

#include <string>

namespace tessarin {

/// The font of a value, and of a label that shows no field yet.
inline const FontStyle FieldFont{.Name = "Arial Black", .Size = 20};

/// What the window knows of a field that it paints.
struct FieldState {
    int Row = 0;
    int Column = 0;
    int Value = 0;
    bool IsCursor = false;
    bool IsDead = false;
    bool IsLocked = false;
    bool IsMarked = false; ///< as a neighbour or a member of the shown group
};

struct FieldLook {
    std::string Caption = {};
    FontStyle TextFont = {};
    Color BackColor = WindowBackground;
    Color ForeColor = ButtonText;
    bool operator==(const FieldLook&) const = default;
};

/// A field with its value: the colour of a mark wins over that of a dead field, and both win over
/// the cursor's.
FieldLook LookOf(const FieldState& field);

/// What a screen reader says of the field: "row 2, column 3: 5, locked, current", with everything
/// that the colours tell.
std::string SpokenName(const FieldState& field);

/// An empty field with the number of its free values.
FieldLook LookOfFreedom(int freedom);

/// Gives `label` the look.
void Apply(const FieldLook& look, Control& label);

} // namespace tessarin
