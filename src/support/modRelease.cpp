#include "support/modRelease.h"

namespace tessarin {

std::string ReleaseDate() {
    return "29.04.2022";
}

std::string ReleaseTime() {
    return "06:49:52";
}

} // namespace tessarin
