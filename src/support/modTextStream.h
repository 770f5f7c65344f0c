// Whole text files as strings. Every byte is one character and back; line ends and byte-order marks
// are left as they are. No procedure throws or shows anything; none leaves a file open.
#pragma once

#include <string>

namespace tessarin {

/// The whole content of the file, or "" when it is missing, empty, unreadable or not an ordinary
/// file (a folder, a device, a pipe).
std::string ReadTextFile(const std::string& fileName);

/// Writes `text` to a new file; with `replaceExisting` also over an existing one. The character set
/// "unicode" writes two bytes for each character, the low one first; any other the text unchanged.
/// Returns "", or "File=" + name + ", Err=" + the system's description when it failed: an existing
/// file that is not to be replaced stays untouched; after an error while writing the file may be
/// empty or incomplete.
std::string WriteTextFile(const std::string& fileName, const std::string& text,
                          const std::string& charset, bool replaceExisting);

/// "unicode" or "utf-8" by the file's byte-order mark, "x-ansi" without one, "" when it is empty or
/// cannot be read.
std::string DetectCharset(const std::string& fileName);

std::string BomUnicode(); ///< the codes 255, 254
std::string BomUtf8();    ///< the codes 239, 187, 191

} // namespace tessarin
