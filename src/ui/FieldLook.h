// What the label of a field looks like.
#pragma once

#include "platform/Control.h"

#include <string>

namespace tessarin {

constexpr Color WindowBackground = SystemColor(5);
constexpr Color ButtonText = SystemColor(18);
constexpr Color Green = 0xFF00;
constexpr Color Red = 0xFF;
constexpr Color Yellow = 0xFFFF;

/// The look of a field with its value, and of a label that shows no field yet.
inline const FontStyle FieldFont{.Name = "Arial Black", .Size = 20};

/// What the window knows of a field that it paints.
struct FieldState {
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

/// A field with its value: a mark covers the dead colour, and both cover the cursor's.
FieldLook LookOf(const FieldState& field);

/// An empty field with the number of its free values.
FieldLook LookOfFreedom(int freedom);

/// Gives `label` the look; what it shows already stays untouched.
void Apply(const FieldLook& look, Control& label);

} // namespace tessarin
