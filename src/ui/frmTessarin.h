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

/// The window: 81 field labels, the number pad, the action panel, the menus and the side column
/// with the field's data and the pace of the automatic solve. It owns the game, calls its player
/// and grid, and repaints fields on their events; it keeps no puzzle state of its own.
///
/// Commands pump window events while they work, so any of them may run inside another one. Two
/// guards limit that: during a solve the panels are disabled, and the window stays open;
/// while a view is shown, ViewRunning disables the menus and the clicks on fields.
///
/// Sizes and positions are in twips; field indices count from 1.
class frmTessarin : public Form {
public:
    explicit frmTessarin(Toolkit& toolkit);
    ~frmTessarin() override;

    /// Paints a field (0 or less: the current one) in its present state and shows its data in the
    /// information panel. A mark makes it yellow. During a solve, waits for the pause that is
    /// chosen. Ignores a field that has no label.
    void PaintField(int index, bool neighbourMark = false, bool groupMark = false);
    /// Shows the number of free values in every empty field.
    void PaintFreedoms();
    /// Updates the number pad for the current field; without one it stays unchanged.
    void RefreshNumPad();
    /// Paints everything, after putting the cursor on field 1 if there is none.
    void RefreshAll();
    /// While a view is shown, all menus but the last are disabled.
    void SetViewRunning(bool MyViewRunning);
    bool ViewRunning() const { return mbViewRunning; }
    /// The option of the pace with that caption; there has to be one.
    OptionButton& PaceOption(std::string_view caption);
    /// Shows or hides the side column, for which the window gets wider.
    void SetInfoVisible(bool MyInfoVisible);
    bool InfoVisible() const { return mbInfoVisible; }

    Label lblFile;
    ControlArray<Label> lblField;
    Frame fraNumPad;
    ControlArray<CommandButton> btnNumPad;
    Frame fraAction;
    CommandButton btnNextFree;
    CommandButton btnNextFreeAuto;
    CommandButton btnSolve;
    CommandButton btnGoBack;
    CommandButton btnGoBackToFreedom;
    CommandButton btnNextFreeValue;
    CommandButton btnInfo;
    Label lblDeadEnd;
    Label lblWinner;
    Frame fraInfo;
    Label lblInfo;
    Frame fraChill;
    ControlArray<OptionButton> optChill;
    Frame fraRotor;
    ctlRotor ctlRotor1;
    CommonDialog CommonDialog1;

    MenuItem mnuFile;
    MenuItem mnuFileImportCSV;
    MenuItem mnuFileExportCSV;
    MenuItem mnuSplit0;
    MenuItem mnuFileQuit;
    MenuItem mnuEdit;
    MenuItem mnuEditClear;
    MenuItem mnuEditClearFree;
    MenuItem mnuEditClearAll;
    MenuItem mnuEditLockAll;
    MenuItem mnuEditLockAllSet;
    MenuItem mnuEditLockClear;
    MenuItem mnuView;
    MenuItem mnuViewFreedom;
    MenuItem mnuSplit2;
    MenuItem mnuViewGroups;
    MenuItem mnuViewNeighbours;
    MenuItem mnuHelp;
    MenuItem mnuAbout;

private:
    // Life cycle.
    void Form_Initialize();
    void Form_Activate();
    void Form_Load();
    void Form_Unload(bool& cancel);
    void Form_Terminate();

    void ConnectGame();
    void ConnectCommands();
    void LayoutWindow();
    void CreateFieldLabels();
    void CreateNumPad();
    void ArrangeActionPanel();
    void ArrangeSideColumn();

    FieldState StateOf(const Field& field, int deadField) const;
    void ShowState(int index, const FieldState& state);
    // The cursor has left the field that is painted as the current one: arrow keys, focus and
    // screen reader move to the cursor's label.
    void MakeCursorCurrent(int deadField);
    void RepaintFormerCurrent(int index, int deadField);
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
    int ChillDelay = 0;       // the Delay of the chosen pace
    int PreviousIndex = 0;    // the index of the last BeforeIndexChanged
    int mlPaintedCurrent = 0; // the field that is painted as the current one; 0 for none
    bool mbViewRunning = false;
    bool mbInfoVisible = false;
};

} // namespace tessarin
