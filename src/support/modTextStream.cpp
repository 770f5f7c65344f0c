// SPDX-License-Identifier: MIT
#include "support/modTextStream.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace tessarin {

namespace {

std::string TwoBytesEach(const std::string& text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char c : text)
        bytes.append({c, '\0'});
    return bytes;
}

// Returns 0 or the system's error number.
int Write(const std::string& FileName, const std::string& bytes, bool replaceExisting) {
    std::FILE* const file = std::fopen(FileName.c_str(), replaceExisting ? "wb" : "wbx");
    if (file == nullptr) return errno;
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int writeError = isWritten ? 0 : errno;
    const int closeError = std::fclose(file) == 0 ? 0 : errno;
    const int error = isWritten ? closeError : writeError;
    // The file is new. Left behind, it would make the next export to its name fail.
    if (error != 0 && !replaceExisting) std::remove(FileName.c_str());
    return error;
}

constexpr std::uintmax_t LargestSize = std::uintmax_t{16} * 1024 * 1024;

// The first `count` bytes of the file, fewer if it is shorter. Opens nothing that could block for
// ever or never end: no pipe or device, and no file of /proc, whose size is 0.
std::string Read(const std::string& FileName, std::uintmax_t count) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(FileName, error)) return "";
    const std::uintmax_t size = std::filesystem::file_size(FileName, error);
    if (error || size == 0 || size > LargestSize) return "";
    std::string bytes(std::min(count, size), '\0');
    std::ifstream file(FileName, std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (file.bad()) return "";
    return bytes;
}

} // namespace

std::string ReadTextFile(const std::string& FileName) {
    return Read(FileName, LargestSize);
}

std::string WriteTextFile(const std::string& FileName, const std::string& text,
                          const std::string& charset, bool replaceExisting) {
    const int error =
        Write(FileName, charset == "unicode" ? TwoBytesEach(text) : text, replaceExisting);
    if (error == 0) return "";
    return "File=" + FileName + ", Err=" + std::generic_category().message(error);
}

std::string DetectCharset(const std::string& FileName) {
    const std::string start = Read(FileName, 3);
    if (start.empty()) return "";
    if (start.starts_with(BomUnicode())) return "unicode";
    if (start.starts_with(BomUtf8())) return "utf-8";
    return "x-ansi";
}

std::string BomUnicode() {
    return "\xFF\xFE";
}

std::string BomUtf8() {
    return "\xEF\xBB\xBF";
}

} // namespace tessarin
