// The design of the window's controls, and its life cycle.
#include "ui/frmTessarin.h"

#include "support/modKbd.h"
#include "support/modTaskBar.h"
#include "ui/Paces.h"

namespace tessarin {

namespace {

// The fields reach down to 6120 twips; the rest is a rim below them.
constexpr float SpaceForGrid = 6150;
// Thirteen lines of this size fit into the information panel.
const FontStyle PlainFont{.Size = 7.5F};

ControlProperties OptionOf(const Pace& pace) {
    return {.Name = "optChill",
            .Caption = pace.Caption,
            .ToolTipText = pace.ToolTip,
            .Left = pace.Left,
            .Top = pace.Top,
            .Width = 855,
            .Height = 255,
            .Font = PlainFont};
}

} // namespace

// clang-format off
frmTessarin::frmTessarin(Toolkit& toolkit)
    : Form(toolkit, {.Name = "frmTessarin", .Caption = "Velmora Sudoku Solver", .Visible = false, .PictureFile = "tessarin"},
           SpaceForGrid),
      lblFile(*this, {.Name = "lblFile", .Top = 120, .Width = 8535, .Height = 255, .Font = PlainFont}),
      lblField(*this, {.Name = "lblField", .Visible = false, .Border = BorderStyle::FixedSingle, .Align = Alignment::Center, .Keys = KeyStop::Grid, .BackColor = WindowBackground}),
      fraNumPad(*this, {.Name = "fraNumPad", .Width = 2400, .Height = 3150, .BackColor = WindowBackground}),
      btnNumPad(fraNumPad, {.Name = "btnNumPad", .Caption = "0"}),
      fraAction(*this, {.Name = "fraAction", .BackColor = WindowBackground}),
      btnNextFree(fraAction, {.Name = "btnNextFree", .Caption = ">", .ToolTipText = "goto next free field"}),
      btnNextFreeAuto(fraAction, {.Name = "btnNextFreeAuto", .Caption = ">I", .ToolTipText = "goto next free field and fill value in", .Shortcuts = "PgDown"}),
      btnSolve(fraAction, {.Name = "btnSolve", .Caption = "S", .ToolTipText = "solve the sudoku"}),
      btnGoBack(fraAction, {.Name = "btnGoBack", .Caption = "<", .ToolTipText = "go back to previous field"}),
      btnGoBackToFreedom(fraAction, {.Name = "btnGoBackToFreedom", .Caption = "<<", .ToolTipText = "go back to last field with freedom", .Shortcuts = "PgUp"}),
      btnNextFreeValue(fraAction, {.Name = "btnNextFreeValue", .Caption = "F", .ToolTipText = "next free value"}),
      btnInfo(fraAction, {.Name = "btnInfo", .Caption = "I", .ToolTipText = "show/hide fild info"}),
      lblDeadEnd(fraAction, {.Name = "lblDeadEnd", .Caption = "DeadEnd", .ToolTipText = "dead end", .Border = BorderStyle::FixedSingle, .Keys = KeyStop::Own}),
      lblWinner(fraAction, {.Name = "lblWinner", .Caption = "Winner", .ToolTipText = "winner", .Border = BorderStyle::FixedSingle}),
      fraInfo(*this, {.Name = "fraInfo", .Caption = "FieldInfo", .Width = 2535, .Height = 3375, .Border = BorderStyle::FixedSingle, .Font = PlainFont}),
      lblInfo(fraInfo, {.Name = "lblInfo", .Caption = "Label1", .Left = 240, .Top = 360, .Width = 2055, .Height = 2655, .Wrap = true, .Font = PlainFont}),
      fraChill(*this, {.Name = "fraChill", .Caption = "Chillout", .Width = 2535, .Height = 2175, .Border = BorderStyle::FixedSingle, .Font = PlainFont}),
      optChill(fraChill, OptionOf(Paces[0])),
      fraRotor(fraChill, {.Name = "fraRotor", .Left = 1320, .Top = 960, .Width = 975, .Height = 975, .Border = BorderStyle::FixedSingle}),
      ctlRotor1(fraRotor, {.Name = "ctlRotor1", .Width = 480, .Height = 480}),
      CommonDialog1(toolkit),
      mnuFile(*this, {.Name = "mnuFile", .Caption = "File"}),
      mnuFileImportCSV(mnuFile, {.Name = "mnuFileImportCSV", .Caption = "Import", .Shortcuts = "Ctrl+O"}),
      mnuFileExportCSV(mnuFile, {.Name = "mnuFileExportCSV", .Caption = "Export", .Shortcuts = "Ctrl+S"}),
      mnuSplit0(mnuFile, {.Name = "mnuSplit0", .Caption = "-"}),
      mnuFileQuit(mnuFile, {.Name = "mnuFileQuit", .Caption = "Quit", .Shortcuts = "Ctrl+Q"}),
      mnuEdit(*this, {.Name = "mnuEdit", .Caption = "Edit"}),
      mnuEditClear(mnuEdit, {.Name = "mnuEditClear", .Caption = "Clear"}),
      mnuEditClearFree(mnuEditClear, {.Name = "mnuEditClearFree", .Caption = "Free"}),
      mnuEditClearAll(mnuEditClear, {.Name = "mnuEditClearAll", .Caption = "All"}),
      mnuEditLockAll(mnuEdit, {.Name = "mnuEditLockAll", .Caption = "Lock All"}),
      mnuEditLockAllSet(mnuEditLockAll, {.Name = "mnuEditLockAllSet", .Caption = "Set"}),
      mnuEditLockClear(mnuEditLockAll, {.Name = "mnuEditLockClear", .Caption = "Clear"}),
      mnuView(*this, {.Name = "mnuView", .Caption = "View"}),
      mnuViewFreedom(mnuView, {.Name = "mnuViewFreedom", .Caption = "Freedom"}),
      mnuSplit2(mnuView, {.Name = "mnuSplit2", .Caption = "-"}),
      mnuViewGroups(mnuView, {.Name = "mnuViewGroups", .Caption = "Groups"}),
      mnuViewNeighbours(mnuView, {.Name = "mnuViewNeighbours", .Caption = "Neighbours"}),
      mnuHelp(*this, {.Name = "mnuHelp", .Caption = "?"}),
      mnuAbout(mnuHelp, {.Name = "mnuAbout", .Caption = "About"}) {
    for (std::size_t i = 1; i < Paces.size(); ++i)
        optChill.Add(static_cast<int>(i), OptionOf(Paces.at(i)));
    Activate = [this] { Form_Activate(); };
    Unload = [this](bool& cancel) { Form_Unload(cancel); };
    Form_Initialize();
    Form_Load();
}
// clang-format on

frmTessarin::~frmTessarin() {
    Form_Terminate();
}

void frmTessarin::Form_Initialize() {
    moGame = std::make_unique<Game>();
    ConnectGame();
    ConnectCommands();
    LayoutWindow();
}

void frmTessarin::Form_Activate() {
    ShowInTaskBar(Handle(), true);
    RefreshAll();
}

// Nothing is left to do when the window is loaded.
void frmTessarin::Form_Load() {}

void frmTessarin::Form_Unload(bool& cancel) {
    cancel = Solving;
    // At the pace Step a solve may still run although Solving is false: it has requested its own
    // cancel. Choosing another pace clears that request, and then the solve would go on behind the
    // closed window.
    if (!cancel) SetCancel();
}

void frmTessarin::Form_Terminate() {
    moGame.reset();
}

} // namespace tessarin
