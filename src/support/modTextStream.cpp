#include "support/modTextStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <system_error>

namespace tessarin {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Opens only regular files: a pipe or device could block for ever or never end.
File OpenToRead(const std::string& fileName) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) return nullptr;
    return File(std::fopen(fileName.c_str(), "rb"));
}

// The first `limit` bytes of the file, by default all; "" after any failure.
std::string Read(const std::string& fileName, std::size_t limit = std::string::npos) {
    try {
        const File file = OpenToRead(fileName);
        if (!file) return "";
        std::string content;
        std::array<char, 65536> block{};
        while (content.size() < limit) {
            const std::size_t wanted = std::min(block.size(), limit - content.size());
            const std::size_t got = std::fread(block.data(), 1, wanted, file.get());
            if (got == 0) break;
            content.append(block.data(), got);
        }
        if (std::ferror(file.get()) != 0) return "";
        return content;
    } catch (const std::exception&) { // a file that does not fit into the memory
        return "";
    }
}

std::string TwoBytesEach(const std::string& text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char c : text)
        bytes.append({c, '\0'});
    return bytes;
}

// Returns 0 or the system's error number.
int Write(const std::string& fileName, const std::string& bytes, bool replaceExisting) {
    std::FILE* const file = std::fopen(fileName.c_str(), replaceExisting ? "wb" : "wbx");
    if (file == nullptr) return errno;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (written && closed) return 0;
    return written ? errno : error;
}

} // namespace

std::string ReadTextFile(const std::string& fileName) {
    return Read(fileName);
}

std::string WriteTextFile(const std::string& fileName, const std::string& text,
                          const std::string& charset, bool replaceExisting) {
    const int error =
        Write(fileName, charset == "unicode" ? TwoBytesEach(text) : text, replaceExisting);
    if (error == 0) return "";
    return "File=" + fileName + ", Err=" + std::generic_category().message(error);
}

std::string DetectCharset(const std::string& fileName) {
    const std::string start = Read(fileName, 3);
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
