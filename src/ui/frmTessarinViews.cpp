// The views: what is shown for a while and then taken back.
#include "support/modWait.h"
#include "ui/FieldLook.h"
#include "ui/frmTessarin.h"

namespace tessarin {

namespace {

constexpr int GroupMilliseconds = 1000;

void Tell(const std::string& prompt) {
    Platform::Current().ShowMessage({.Prompt = prompt});
}

} // namespace

std::vector<Label*> frmTessarin::DeadLabels() {
    std::vector<Label*> labels;
    if (const auto& dead = moGame->Fields->DeadFields)
        for (const int index : *dead)
            if (lblField.Has(index)) labels.push_back(&lblField(index));
    return labels;
}

// Only the background is touched: afterwards the fields keep the normal one until they are painted.
void frmTessarin::lblDeadEnd_Click() {
    SetViewRunning(true);
    for (Label* const label : DeadLabels())
        label->SetBackColor(Red);
    Tell("Dead cells = " + std::to_string(moGame->Fields->DeadCount()));
    for (Label* const label : DeadLabels())
        label->SetBackColor(WindowBackground);
    SetViewRunning(false);
}

void frmTessarin::mnuViewNeighbours_Click() {
    SetViewRunning(true);
    if (const auto cursor = moGame->Fields->Cursor) {
        for (const int index : cursor->Neighbours)
            PaintField(index, true);
        Tell("Neigbours = " + std::to_string(cursor->Neighbours.Count()));
        for (const int index : cursor->Neighbours)
            PaintField(index);
    }
    SetViewRunning(false);
}

void frmTessarin::mnuViewGroups_Click() {
    SetViewRunning(true);
    const auto groups = moGame->Groups->Items; // an import in between replaces them
    for (const auto& group : groups) {
        for (const int index : group->Fields)
            PaintField(index, false, true);
        Wait(GroupMilliseconds);
        for (const int index : group->Fields)
            PaintField(index);
    }
    RefreshAll();
    SetViewRunning(false);
}

void frmTessarin::mnuViewFreedom_Click() {
    SetViewRunning(true);
    PaintFreedoms();
    Tell("Freedoms of fields");
    RefreshAll();
    for (Label* const label : DeadLabels()) {
        label->SetBackColor(WindowBackground);
        label->SetForeColor(ButtonText);
    }
    SetViewRunning(false);
}

} // namespace tessarin
