// The request to cancel a running automatic solve, and the ESC key's question.
#pragma once

namespace tessarin {

/// A cancel of the running automatic solve has been requested.
extern bool gbCancel;

void ClearCancel();
void SetCancel();

/// Whether the running solve shall stop: at once when a cancel is already requested; otherwise,
/// when ESC is down or was pressed since the last call, as the user answers the question. Yes sets
/// gbCancel, No leaves it unset, so that the next ESC asks again.
bool CancelRequested();

} // namespace tessarin
