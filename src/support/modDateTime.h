// SPDX-License-Identifier: MIT
// Date and time as text.
#pragma once

#include "platform/Platform.h"

#include <string>

namespace tessarin {

/// `moment` as yyyymmdd hhmmss, 15 characters; the zero date gives 15 blanks.
std::string DateTimeStamp(const DateTime& moment);

} // namespace tessarin
