// SPDX-License-Identifier: MIT
// When this version of the program was released.
#pragma once

#include <string>

namespace tessarin {

std::string ReleaseDate(); ///< as dd.mm.yyyy
std::string ReleaseTime(); ///< as hh:mm:ss

} // namespace tessarin
