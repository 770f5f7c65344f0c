// SPDX-License-Identifier: MIT
#include "support/modDateTime.h"

#include "support/modStringLibrary.h"

namespace tessarin {

std::string DateTimeStamp(const DateTime& moment) {
    if (moment == DateTime{}) return std::string(15, ' ');
    return PadNumber(moment.Year, 4, "") + PadNumber(moment.Month, 2, "") +
           PadNumber(moment.Day, 2, "") + " " + PadNumber(moment.Hour, 2, "") +
           PadNumber(moment.Minute, 2, "") + PadNumber(moment.Second, 2, "");
}

} // namespace tessarin
