// SPDX-License-Identifier: MIT
// What the controls of a window are designed with, a structure for each kind.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>

namespace tessarin {

/// A place relative to the inside of the container, in twips (1440 to the inch).
struct Bounds {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

/// A fixed colour 0x00BBGGRR, or a system colour: 0x80000000 with its number. A system colour is
/// looked up when it is painted.
using Color = std::uint32_t;

constexpr Color WindowBackground = 0x80000005;
constexpr Color ButtonFace = 0x8000000F;
constexpr Color ButtonText = 0x80000012;

constexpr bool IsSystemColor(Color color) {
    return (color & 0x80000000) != 0;
}

/// A typeface by name with its size in points. Without a name it is the toolkit's own.
struct FontStyle {
    std::string Name = {};
    float Size = 9;
    bool Italic = false;
    bool operator==(const FontStyle&) const = default;
};

enum class BorderStyle { None, FixedSingle };

/// How a label lays out its text.
enum class TextFlow {
    Line,     ///< from the left; a long text lacks its middle and is whole in a tool tip
    Lines,    ///< from the top left; long lines are broken after a blank or a semicolon
    Centered, ///< in the middle
};

/// A cell of the form's grid of labels. Rows and columns count from 1.
struct GridCell {
    int Row = 1;
    int Column = 1;
    // clang-tidy 14 sees a null pointer in a comparison that is defaulted.
    auto operator<=>(const GridCell&) const = default; // NOLINT(modernize-use-nullptr)
};

struct LabelProperties {
    Bounds Place = {};
    std::string Caption = {};
    std::string ToolTipText = {};
    FontStyle Font = {};
    TextFlow Flow = TextFlow::Line;
    BorderStyle Border = BorderStyle::None;
    Color BackColor = ButtonFace;
    Color ForeColor = ButtonText;
    /// Whether the Tab key stops at the label; then Space and Enter click it.
    bool TabStop = false;
    /// The label's cell in the form's grid. The Tab key stops at the current label of the grid, and
    /// the arrow keys move on from there.
    std::optional<GridCell> Cell = {};
    bool Visible = true;
};

struct CommandButtonProperties {
    Bounds Place = {};
    std::string Caption = {};
    std::string ToolTipText = {};
    FontStyle Font = {};
    /// Keys that click the button, separated by "; ": "Del; Backspace". So does the character that
    /// is its whole caption.
    std::string Shortcuts = {};
};

struct OptionButtonProperties {
    Bounds Place = {};
    std::string Caption = {};
    std::string ToolTipText = {};
    FontStyle Font = {};
};

struct FrameProperties {
    Bounds Place = {};
    /// Stands in the upper line of the border.
    std::string Caption = {};
    std::string ToolTipText = {};
    FontStyle Font = {};
    BorderStyle Border = BorderStyle::None;
    Color BackColor = ButtonFace;
};

struct PictureProperties {
    Bounds Place = {};
    /// One of the pictures that the program carries.
    std::string File = {};
    bool Visible = true;
};

struct FormProperties {
    std::string Caption = {};
    /// The beginning of the names of the icon's pictures, one for each size: "name" stands for all
    /// "name-<size>.png" that the program carries.
    std::string Icon = {};
    /// The least visible height below the menu bar, in twips, however thick the border is.
    float MinClientHeight = 0;
};

} // namespace tessarin
