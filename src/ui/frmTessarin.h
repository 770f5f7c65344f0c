// SPDX-License-Identifier: MIT
#pragma once

#include "play/Game.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/ControlArray.h"
#include "toolkit/Controls.h"
#include "toolkit/Form.h"
#include "ui/FieldLook.h"
#include "ui/Paces.h"
#include "ui/ctlRotor/ctlRotor.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

class Field;

/// The font of small texts. Thirteen lines of this size fit into the information panel.
inline const FontStyle PlainFont{.Size = 7.5F};

/// The window: 81 field labels, the number pad, the action panel, the menus and the side column
/// with the field's data and the pace of the automatic solve. It owns the game, calls its player
/// and grid, and repaints fields on their events; it keeps no puzzle state of its own.
///
/// Commands pump window events while they work, so any of them may run inside another one. Two
/// guards limit that: during a solve the panels are disabled, and the window stays open; while a
/// view is shown, ViewRunning disables all menus but the last and the clicks on fields.
///
/// Sizes and positions are in twips; field indices count from 1.
class frmTessarin : public Form {
public:
    explicit frmTessarin(Toolkit& toolkit);
    ~frmTessarin() override;

    /// Counts the grid, which pumps, then paints a field (0 or less: the current one) in the state
    /// that it has then, and shows its data in the information panel. Either mark makes it yellow;
    /// they look the same.
    /// During a solve, waits for the pause that is chosen, whoever paints. Ignores a field that has
    /// no label.
    void PaintField(int index, bool neighbourMark = false, bool groupMark = false);
    /// Shows the number of free values in every empty field.
    void PaintFreedoms();
    /// Updates the number pad for the current field; without one it stays unchanged.
    void RefreshNumPad();
    /// Paints all fields and the number pad, after putting the cursor on field 1 if there is none.
    void RefreshAll();
    /// While a view is shown, all menus but the last are disabled, and a click on a field does
    /// nothing.
    void SetViewRunning(bool MyViewRunning);
    bool ViewRunning() const { return mbViewRunning; }
    /// The option of the pace with that caption. Throws std::out_of_range for another caption.
    OptionButton& PaceOption(std::string_view caption);
    /// Shows or hides the side column, for which the window gets wider.
    void SetInfoVisible(bool MyInfoVisible);
    bool InfoVisible() const { return mbInfoVisible; }

    // The controls and their design, each after the one that contains it; menu entries in the order
    // of their menu.
    Label lblFile{
        *this, "lblFile", {.Place = {.Top = 120, .Width = 8535, .Height = 255}, .Font = PlainFont}};
    ControlArray<Label> lblField{*this,
                                 "lblField",
                                 {.Place = FieldSize,
                                  .Font = FieldFont,
                                  .Flow = TextFlow::Centered,
                                  .Border = BorderStyle::FixedSingle,
                                  .BackColor = WindowBackground,
                                  .Visible = false}};
    Frame fraNumPad{*this,
                    "fraNumPad",
                    {.Place = {.Width = 2400, .Height = 3150}, .BackColor = WindowBackground}};
    ControlArray<CommandButton> btnNumPad{
        fraNumPad,
        "btnNumPad",
        {.Place = FieldSize, .Caption = "0", .Font = {.Name = "Arial", .Size = 20}}};
    Frame fraAction{*this, "fraAction", {.BackColor = WindowBackground}};
    CommandButton btnNextFree{fraAction, "btnNextFree", ActionButton(">", "goto next free field")};
    CommandButton btnNextFreeAuto{
        fraAction, "btnNextFreeAuto",
        ActionButton(">I", "goto next free field and fill value in", "PgDown")};
    CommandButton btnSolve{fraAction, "btnSolve", ActionButton("S", "solve the sudoku")};
    CommandButton btnGoBack{fraAction, "btnGoBack", ActionButton("<", "go back to previous field")};
    CommandButton btnGoBackToFreedom{
        fraAction, "btnGoBackToFreedom",
        ActionButton("<<", "go back to last field with freedom", "PgUp")};
    CommandButton btnNextFreeValue{fraAction, "btnNextFreeValue",
                                   ActionButton("F", "next free value")};
    CommandButton btnInfo{fraAction, "btnInfo", ActionButton("I", "show/hide fild info")};
    Label lblDeadEnd{fraAction,
                     "lblDeadEnd",
                     {.Place = FieldSize,
                      .Caption = "DeadEnd",
                      .ToolTipText = "dead end",
                      .Border = BorderStyle::FixedSingle,
                      .TabStop = true}};
    Label lblWinner{fraAction,
                    "lblWinner",
                    {.Place = FieldSize,
                     .Caption = "Winner",
                     .ToolTipText = "winner",
                     .Border = BorderStyle::FixedSingle}};
    Frame fraInfo{*this,
                  "fraInfo",
                  {.Place = {.Width = 2535, .Height = 3375},
                   .Caption = "FieldInfo",
                   .Font = PlainFont,
                   .Border = BorderStyle::FixedSingle}};
    Label lblInfo{fraInfo,
                  "lblInfo",
                  {.Place = {.Left = 240, .Top = 360, .Width = 2055, .Height = 2655},
                   .Caption = "Label1",
                   .Font = PlainFont,
                   .Flow = TextFlow::Lines}};
    Frame fraChill{*this,
                   "fraChill",
                   {.Place = {.Width = 2535, .Height = 2175},
                    .Caption = "Chillout",
                    .Font = PlainFont,
                    .Border = BorderStyle::FixedSingle}};
    ControlArray<OptionButton> optChill{fraChill, "optChill", OptionOf(Paces[0])};
    Frame fraRotor{fraChill,
                   "fraRotor",
                   {.Place = {.Left = 1320, .Top = 960, .Width = 975, .Height = 975},
                    .Border = BorderStyle::FixedSingle}};
    ctlRotor ctlRotor1{fraRotor, "ctlRotor1", {.Width = 480, .Height = 480}};
    CommonDialog CommonDialog1;

    MenuItem mnuFile{*this, "mnuFile", "File"};
    MenuItem mnuFileImportCSV{mnuFile, "mnuFileImportCSV", "Import", "Ctrl+O"};
    MenuItem mnuFileExportCSV{mnuFile, "mnuFileExportCSV", "Export", "Ctrl+S"};
    MenuItem mnuSplit0{mnuFile, "mnuSplit0", "-"};
    MenuItem mnuFileQuit{mnuFile, "mnuFileQuit", "Quit", "Ctrl+Q"};
    MenuItem mnuEdit{*this, "mnuEdit", "Edit"};
    MenuItem mnuEditClear{mnuEdit, "mnuEditClear", "Clear"};
    MenuItem mnuEditClearFree{mnuEditClear, "mnuEditClearFree", "Free"};
    MenuItem mnuEditClearAll{mnuEditClear, "mnuEditClearAll", "All"};
    MenuItem mnuEditLockAll{mnuEdit, "mnuEditLockAll", "Lock All"};
    MenuItem mnuEditLockAllSet{mnuEditLockAll, "mnuEditLockAllSet", "Set"};
    MenuItem mnuEditLockClear{mnuEditLockAll, "mnuEditLockClear", "Clear"};
    MenuItem mnuView{*this, "mnuView", "View"};
    MenuItem mnuViewFreedom{mnuView, "mnuViewFreedom", "Freedom"};
    MenuItem mnuSplit2{mnuView, "mnuSplit2", "-"};
    MenuItem mnuViewGroups{mnuView, "mnuViewGroups", "Groups"};
    MenuItem mnuViewNeighbours{mnuView, "mnuViewNeighbours", "Neighbours"};
    MenuItem mnuHelp{*this, "mnuHelp", "?"};
    MenuItem mnuAbout{mnuHelp, "mnuAbout", "About"};

private:
    // The keys of btnNumPad besides the digits 0 to 9.
    static constexpr int LockKey = 10;
    static constexpr int ClearKey = 11;

    static CommandButtonProperties ActionButton(const char* caption, const char* toolTip,
                                                const char* shortcuts = "");
    static OptionButtonProperties OptionOf(const Pace& pace);

    // Life cycle.
    void Form_Initialize();
    void Form_Activate();
    void Form_Load();
    void Form_Unload(bool& cancel);
    void Form_Terminate();

    void ConnectGame();
    void ConnectCommands();
    // The height in which a grid of dimension 3 is seen whole.
    static float SpaceForGrid();
    void LayoutWindow();
    void CreateFieldLabels();
    void CreateNumPad();
    void ArrangeActionPanel();
    void ArrangeSideColumn();

    void PaintAsNeighbour(int index);
    void PaintAsGroupMember(int index);
    // IsDead is set for one field only: the lowest dead field of the last count.
    FieldState StateOf(const Field& field) const;
    void ShowState(int index, const FieldState& state);
    void ShowStateAndCurrent(int index, const FieldState& state);
    std::string InfoText(const Field& field, const FieldState& state) const;
    static void SetIndicator(Label& indicator, Color color);
    // The labels of the fields that were dead at the last count.
    std::vector<Label*> DeadLabels();
    bool IsQuietSolve() const { return Solving && ChillDelay == Pace::Quiet; }

    // Commands.
    void lblField_Click(int Index);
    void lblDeadEnd_Click();
    void mnuAbout_Click();
    void mnuFileImportCSV_Click();
    void mnuFileExportCSV_Click();
    void mnuFileQuit_Click();
    void mnuEditClearFree_Click();
    void mnuEditClearAll_Click();
    void mnuEditLockAllSet_Click();
    void mnuEditLockClear_Click();
    void mnuViewFreedom_Click();
    void mnuViewGroups_Click();
    void mnuViewNeighbours_Click();
    void btnNextFree_Click();
    void btnNextFreeAuto_Click();
    void btnGoBack_Click();
    void btnGoBackToFreedom_Click();
    void btnNextFreeValue_Click();
    void btnSolve_Click();
    void btnInfo_Click();
    void btnNumPad_Click(int Index);
    void optChill_Click(int Index);

    // Events of the game.
    void moGame_BeforeIndexChanged(int Index);
    void moGame_IndexChanged(int Index);
    void moGame_StatusChanged(int Index);
    void moGame_IsWinner(int Index);
    void moGame_IsDeadEnd(int Index);

    std::unique_ptr<Game> moGame;
    std::array<Connection, 5> mConnections;
    bool Solving = false;
    int ChillDelay = 0;     // the Delay of the chosen pace
    int PreviousIndex = 0;  // the index of the last BeforeIndexChanged; 0 before the first
    int PaintedCurrent = 0; // the field that is painted as the current one; 0 for none
    bool mbViewRunning = false;
    bool mbInfoVisible = false;
};

} // namespace tessarin
