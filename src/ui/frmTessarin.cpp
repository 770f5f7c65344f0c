// SPDX-License-Identifier: MIT
// The life cycle of the window.
#include "ui/frmTessarin.h"

#include "support/modKbd.h"
#include "support/modTaskBar.h"

namespace tessarin {

frmTessarin::frmTessarin(Toolkit& toolkit)
    : Form(toolkit, "frmTessarin",
           {.Caption = "Velmora Sudoku Solver",
            .Icon = "tessarin",
            .MinClientHeight = SpaceForGrid()}),
      CommonDialog1(toolkit) {
    for (std::size_t i = 1; i < Paces.size(); ++i)
        optChill.Add(static_cast<int>(i), OptionOf(Paces.at(i)));
    Activate = [this] { Form_Activate(); };
    Unload = [this](bool& cancel) { Form_Unload(cancel); };
    Form_Initialize();
    Form_Load();
}

frmTessarin::~frmTessarin() {
    Form_Terminate();
}

CommandButtonProperties frmTessarin::ActionButton(const char* caption, const char* toolTip,
                                                  const char* shortcuts) {
    return {.Place = FieldSize,
            .Caption = caption,
            .ToolTipText = toolTip,
            .Font = {.Name = "Arial", .Size = 14},
            .Shortcuts = shortcuts};
}

OptionButtonProperties frmTessarin::OptionOf(const Pace& pace) {
    return {.Place = {.Left = pace.Left, .Top = pace.Top, .Width = 855, .Height = 255},
            .Caption = pace.Caption,
            .ToolTipText = pace.ToolTip,
            .Font = PlainFont};
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
