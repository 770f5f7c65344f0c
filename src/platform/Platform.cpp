// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include "platform/NullPlatform.h"

#include <ctime>
#include <iostream>

namespace tessarin {

namespace {
NullPlatform theNullPlatform;
Platform* theCurrent = &theNullPlatform;
} // namespace

Platform& Platform::Current() {
    return *theCurrent;
}

void Platform::SetCurrent(Platform* platform) {
    theCurrent = platform != nullptr ? platform : &theNullPlatform;
}

DateTime Platform::Now() {
    const std::time_t now = std::time(nullptr);
    const std::tm parts = *std::localtime(&now);
    return {.Year = parts.tm_year + 1900,
            .Month = parts.tm_mon + 1,
            .Day = parts.tm_mday,
            .Hour = parts.tm_hour,
            .Minute = parts.tm_min,
            .Second = parts.tm_sec};
}

std::string Platform::NativePath(const std::string& path) {
    std::string native = path;
    const auto backslash = native.rfind('\\');
    if (backslash != std::string::npos) native[backslash] = '/';
    return native;
}

void Platform::ReportError(const std::string& what) {
    std::cerr << "A handler ended with an error: " << what << '\n';
}

} // namespace tessarin
