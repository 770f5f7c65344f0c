// SPDX-License-Identifier: MIT
// The request to cancel a running automatic solve, and the question that ESC asks.
#pragma once

namespace tessarin {

/// Whether a cancel of the running automatic solve has been requested.
extern bool gbCancel;

void ClearCancel();
void SetCancel();

/// Whether the running solve has to stop: true if gbCancel is set. If not, and ESC was pressed
/// since the last call, the user is asked: Yes sets gbCancel, after No the next ESC asks again.
bool CancelRequested();

} // namespace tessarin
