// SPDX-License-Identifier: MIT
// The handlers of menus, buttons and options, and those of the game's events.
#include "model/Fields.h"
#include "platform/AtScopeEnd.h"
#include "platform/Platform.h"
#include "platform/ScopedValue.h"
#include "play/Play.h"
#include "support/modKbd.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

#include <exception>
#include <functional>
#include <utility>

namespace tessarin {

namespace {

// Runs a step of an import or export. The next step follows even after an error.
void RunIgnoringErrors(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception&) {
        // The user is not told.
    }
}

bool Confirmed(const std::string& question) {
    const auto answer = Platform::Current().ShowMessage(
        {.Prompt = question, .ButtonSet = Message::Buttons::YesNo, .QuestionIcon = true});
    return answer == Message::Answer::Yes;
}

void Prepare(CommonDialog& dialog, const char* title, bool fileMustExist) {
    dialog.FileMustExist = fileMustExist;
    dialog.PathMustExist = true;
    dialog.DialogTitle = title;
    dialog.Filter = "CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*";
    dialog.DefaultExt = ".csv";
}

} // namespace

void frmTessarin::ConnectGame() {
    auto& events = moGame->Events;
    mConnections = {
        events.BeforeIndexChanged.Connect([this](int i) { moGame_BeforeIndexChanged(i); }),
        events.IndexChanged.Connect([this](int i) { moGame_IndexChanged(i); }),
        events.StatusChanged.Connect([this](int i) { moGame_StatusChanged(i); }),
        events.IsWinner.Connect([this](int i) { moGame_IsWinner(i); }),
        events.IsDeadEnd.Connect([this](int i) { moGame_IsDeadEnd(i); })};
}

void frmTessarin::ConnectCommands() {
    lblDeadEnd.Click = [this] { lblDeadEnd_Click(); };
    mnuAbout.Click = [this] { mnuAbout_Click(); };
    mnuFileImportCSV.Click = [this] { mnuFileImportCSV_Click(); };
    mnuFileExportCSV.Click = [this] { mnuFileExportCSV_Click(); };
    mnuFileQuit.Click = [this] { mnuFileQuit_Click(); };
    mnuEditClearFree.Click = [this] { mnuEditClearFree_Click(); };
    mnuEditClearAll.Click = [this] { mnuEditClearAll_Click(); };
    mnuEditLockAllSet.Click = [this] { mnuEditLockAllSet_Click(); };
    mnuEditLockClear.Click = [this] { mnuEditLockClear_Click(); };
    mnuViewFreedom.Click = [this] { mnuViewFreedom_Click(); };
    mnuViewGroups.Click = [this] { mnuViewGroups_Click(); };
    mnuViewNeighbours.Click = [this] { mnuViewNeighbours_Click(); };
    btnNextFree.Click = [this] { btnNextFree_Click(); };
    btnNextFreeAuto.Click = [this] { btnNextFreeAuto_Click(); };
    btnGoBack.Click = [this] { btnGoBack_Click(); };
    btnGoBackToFreedom.Click = [this] { btnGoBackToFreedom_Click(); };
    btnNextFreeValue.Click = [this] { btnNextFreeValue_Click(); };
    btnSolve.Click = [this] { btnSolve_Click(); };
    btnInfo.Click = [this] { btnInfo_Click(); };
    lblField.Click = [this](int Index) { lblField_Click(Index); };
    btnNumPad.Click = [this](int Index) { btnNumPad_Click(Index); };
    optChill.Click = [this](int Index) { optChill_Click(Index); };
}

void frmTessarin::btnSolve_Click() {
    ctlRotor1.SetRunning(true);
    fraAction.SetEnabled(false);
    fraNumPad.SetEnabled(false);
    const AtScopeEnd ready([this] {
        fraNumPad.SetEnabled(true);
        fraAction.SetEnabled(true);
        ctlRotor1.SetRunning(false);
    });
    {
        const ScopedValue<bool> solving(Solving, true);
        moGame->Play->Solve();
    }
    if (ChillDelay == Pace::Quiet) RefreshAll();
}

void frmTessarin::moGame_BeforeIndexChanged(int Index) {
    PreviousIndex = Index;
}

void frmTessarin::moGame_IndexChanged(int Index) {
    if (IsQuietSolve()) return;
    PaintField(PreviousIndex);
    PaintField(Index);
    RefreshNumPad();
}

void frmTessarin::moGame_StatusChanged(int Index) {
    if (!IsQuietSolve()) {
        PaintField(Index);
        RefreshNumPad();
    }
    if (!Solving || ChillDelay != Pace::Step) return;
    // One step is done: the solve ends at its next look at the cancel request.
    SetCancel();
    ctlRotor1.SetRunning(false);
    Solving = false;
}

void frmTessarin::moGame_IsWinner(int Index) {
    SetIndicator(lblWinner, Index == 0 ? WindowBackground : Green);
}

void frmTessarin::moGame_IsDeadEnd(int Index) {
    SetIndicator(lblDeadEnd, Index == 0 ? WindowBackground : Red);
}

void frmTessarin::lblField_Click(int Index) {
    if (!ViewRunning()) moGame->Fields->SetIndex(Index);
}

void frmTessarin::btnNumPad_Click(int Index) {
    Play& play = *moGame->Play;
    if (Index <= 9)
        play.SetValue(Index);
    else if (Index == ClearKey)
        play.SetValue(0);
    else if (Index == LockKey)
        play.SetLocked(!play.Locked());
}

void frmTessarin::optChill_Click(int Index) {
    ClearCancel(); // a solve that has just ended itself, at the pace Step, goes on
    ChillDelay = Paces.at(static_cast<std::size_t>(Index)).Delay;
}

void frmTessarin::btnNextFree_Click() {
    moGame->Play->GotoNextFreeField();
}

void frmTessarin::btnNextFreeAuto_Click() {
    moGame->Play->GotoNextFreeField(true);
}

void frmTessarin::btnGoBack_Click() {
    moGame->Play->GoBack();
}

void frmTessarin::btnGoBackToFreedom_Click() {
    moGame->Play->GoBackToFreedom();
}

void frmTessarin::btnNextFreeValue_Click() {
    moGame->Play->NextFreeValue(true);
}

void frmTessarin::btnInfo_Click() {
    SetInfoVisible(!InfoVisible());
}

void frmTessarin::mnuFileImportCSV_Click() {
    Prepare(CommonDialog1, "Import File", true);
    const bool chosen = CommonDialog1.ShowOpen();
    // A copy, because a command that runs meanwhile may use the dialog again.
    const std::string fileName = chosen ? CommonDialog1.FileName : "";
    if (!fileName.empty()) {
        // The user sees an empty grid while the file is read.
        RunIgnoringErrors([this] { moGame->Fields->Clear(); });
        RunIgnoringErrors([this] { RefreshAll(); });
        lblFile.SetCaption("");
        RunIgnoringErrors([&] { moGame->FileImportCSV(fileName); });
        RunIgnoringErrors([this] { RefreshAll(); });
        moGame->Play->SetTracing(true);
        lblFile.SetCaption(fileName);
    }
    // Also when no file was chosen.
    SetIndicator(lblDeadEnd, WindowBackground);
    SetIndicator(lblWinner, WindowBackground);
}

void frmTessarin::mnuFileExportCSV_Click() {
    Prepare(CommonDialog1, "Export File", false);
    if (!CommonDialog1.ShowSave()) return;
    const std::string fileName = CommonDialog1.FileName;
    if (fileName.empty()) return;
    RunIgnoringErrors([&] { moGame->FileExportCSV(fileName); });
    moGame->Play->SetTracing(true);
}

void frmTessarin::mnuFileQuit_Click() {
    Close();
}

void frmTessarin::mnuEditClearFree_Click() {
    if (!Confirmed("Clear Free?")) return;
    moGame->Fields->Clear(true);
    RefreshAll();
}

void frmTessarin::mnuEditClearAll_Click() {
    if (!Confirmed("Clear All?")) return;
    moGame->Fields->Clear(false);
    RefreshAll();
    lblFile.SetCaption("");
}

void frmTessarin::mnuEditLockAllSet_Click() {
    moGame->Fields->SetLockAll(true);
    RefreshAll();
}

void frmTessarin::mnuEditLockClear_Click() {
    moGame->Fields->SetLockAll(false);
    RefreshAll();
}

void frmTessarin::mnuAbout_Click() {
    ShowAbout();
}

} // namespace tessarin
