#include "support/modTextStream.h"

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
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
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (written && closed) return 0;
    return written ? errno : error;
}

} // namespace

std::string ReadTextFile(const std::string& FileName) {
    // A pipe or device could block for ever or never end.
    std::error_code error;
    if (!std::filesystem::is_regular_file(FileName, error)) return "";
    try {
        std::ifstream file(FileName, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    } catch (const std::exception&) { // a read error, or more than fits into the memory
        return "";
    }
}

std::string WriteTextFile(const std::string& FileName, const std::string& text,
                          const std::string& charset, bool replaceExisting) {
    const int error =
        Write(FileName, charset == "unicode" ? TwoBytesEach(text) : text, replaceExisting);
    if (error == 0) return "";
    return "File=" + FileName + ", Err=" + std::generic_category().message(error);
}

std::string DetectCharset(const std::string& FileName) {
    const std::string text = ReadTextFile(FileName);
    if (text.empty()) return "";
    if (text.starts_with(BomUnicode())) return "unicode";
    if (text.starts_with(BomUtf8())) return "utf-8";
    return "x-ansi";
}

std::string BomUnicode() {
    return "\xFF\xFE";
}

std::string BomUtf8() {
    return "\xEF\xBB\xBF";
}

} // namespace tessarin
