// SPDX-License-Identifier: MIT
// The views: each shows something in the grid for a while.
#include "model/Fields.h"
#include "model/Groups.h"
#include "platform/AtScopeEnd.h"
#include "platform/Platform.h"
#include "support/modWait.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

namespace tessarin {

namespace {

constexpr int GroupMilliseconds = 1000;

void ShowInformation(const std::string& prompt) {
    Platform::Current().ShowMessage({.Prompt = prompt});
}

// Sets ViewRunning until the guard ends. Every view ends by clearing it: a dead-cells view that is
// opened inside the groups view enables the menus again while the groups view goes on.
auto RunningView(frmTessarin& window) {
    window.SetViewRunning(true);
    return AtScopeEnd([&window] { window.SetViewRunning(false); });
}

} // namespace

void frmTessarin::SetViewRunning(bool MyViewRunning) {
    mbViewRunning = MyViewRunning;
    for (MenuItem* const menu : {&mnuFile, &mnuEdit, &mnuView})
        menu->SetEnabled(!MyViewRunning);
}

std::vector<Label*> frmTessarin::DeadLabels() {
    std::vector<Label*> labels;
    if (const auto& dead = moGame->Fields->DeadFields)
        for (const int index : *dead)
            if (lblField.Has(index)) labels.push_back(&lblField(index));
    return labels;
}

// Sets only backgrounds. At the end the dead fields have the normal one until they are painted
// again.
void frmTessarin::lblDeadEnd_Click() {
    const auto view = RunningView(*this);
    for (Label* const label : DeadLabels())
        label->SetBackColor(Red);
    ShowInformation("Dead cells = " + std::to_string(moGame->Fields->DeadCount()));
    for (Label* const label : DeadLabels())
        label->SetBackColor(WindowBackground);
}

void frmTessarin::mnuViewNeighbours_Click() {
    const auto view = RunningView(*this);
    if (const auto cursor = moGame->Fields->Cursor) {
        for (const int index : cursor->Neighbours)
            PaintAsNeighbour(index);
        ShowInformation("Neigbours = " + std::to_string(cursor->Neighbours.Count()));
        for (const int index : cursor->Neighbours)
            PaintField(index);
    }
}

void frmTessarin::mnuViewGroups_Click() {
    const auto view = RunningView(*this);
    const auto groups = moGame->Groups->Items; // an import meanwhile replaces them
    for (const auto& group : groups) {
        for (const int index : group->Fields)
            PaintAsGroupMember(index);
        Wait(GroupMilliseconds);
        for (const int index : group->Fields)
            PaintField(index);
    }
    RefreshAll();
}

void frmTessarin::mnuViewFreedom_Click() {
    const auto view = RunningView(*this);
    PaintFreedoms();
    ShowInformation("Freedoms of fields");
    RefreshAll();
    // As after the dead-cells view: dead fields look normal until they are painted again.
    for (Label* const label : DeadLabels()) {
        label->SetBackColor(WindowBackground);
        label->SetForeColor(ButtonText);
    }
}

} // namespace tessarin
