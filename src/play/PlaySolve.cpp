// SPDX-License-Identifier: MIT
// The automatic solve of the player.
#include "play/Play.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "support/modKbd.h"

namespace tessarin {

void Play::Solve() {
    Fields& grid = Grid();
    Retries = 0;
    ClearCancel();
    SetTracing(true);
    if (grid.Cursor) AddToHistory(grid.Index());
    while (!CancelRequested()) {
        GotoNextFreeField(true);
        if (grid.CountAndPump().IsDeadEnd()) Retreat();
        const Fields::Counts counts = grid.CountAndPump();
        if (counts.IsWinner || counts.IsDeadEnd()) return;
    }
}

// Goes back to the newest field that has a larger free value and gives it that value. A field
// without one keeps its value until the next step back empties it. Fills nothing when the cursor
// cannot move any more.
void Play::Retreat() {
    do {
        if (!GoBackToFreedom()) return;
    } while (NextFreeValue() == 0);
    // Not through Play::SetValue: a field that has left the history does not come back into it.
    NextFreeValue(true);
}

} // namespace tessarin
