#include "play/Play.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "support/modKbd.h"

namespace tessarin {

void Play::Solve() {
    auto& grid = *Board::Current().Fields;
    Retries = 0;
    ClearCancel();
    SetTracing(true);
    if (grid.Cursor) AddToHistory(grid.Index());
    while (!CancelRequested()) {
        GotoNextFreeField(true);
        if (grid.IsDeadEnd()) Retreat();
        if (grid.IsWinner() || grid.IsDeadEnd()) return;
    }
}

// Goes back to the newest field that has a larger free value and gives it that value. A field
// without one keeps its value when it is reached; the next step back empties it. Nothing is filled
// when the cursor cannot move any more.
void Play::Retreat() {
    do {
        if (!GoBackToFreedom()) return;
    } while (NextFreeValue() < 1);
    // Not through SetValue: the field stays at its old place in the history.
    if (const auto field = Board::Current().Fields->Cursor) field->SetValue(field->NextFreeValue());
}

} // namespace tessarin
