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
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int writeError = isWritten ? 0 : errno;
    const int closeError = std::fclose(file) == 0 ? 0 : errno;
    return isWritten ? closeError : writeError;
}

// Opens only a regular file: a pipe or device could block for ever or never end.
std::ifstream Open(const std::string& FileName) {
    std::ifstream file;
    std::error_code error;
    if (std::filesystem::is_regular_file(FileName, error)) file.open(FileName, std::ios::binary);
    return file;
}

} // namespace

std::string ReadTextFile(const std::string& FileName) {
    try {
        std::ifstream file = Open(FileName);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
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
    std::ifstream file = Open(FileName);
    std::string start(3, '\0');
    file.read(start.data(), 3);
    start.resize(static_cast<std::size_t>(file.gcount()));
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
