// SPDX-License-Identifier: MIT
// Reads and writes whole text files. A byte is a character; line ends and byte-order marks stay as
// they are. No function shows anything, leaves a file open, or throws because of a file.
#pragma once

#include <string>

namespace tessarin {

/// The whole content of the file, or "" when it is missing, empty, unreadable, larger than 16 MB or
/// not an ordinary file (a folder, a device, a pipe).
std::string ReadTextFile(const std::string& FileName);

/// Writes `text` to a new file; with `replaceExisting` also over an existing one. The character set
/// "unicode" writes each character as two bytes, the low one first; any other set writes the text
/// unchanged. Returns "" or, on failure, "File=" + name + ", Err=" + the system's description.
/// Without `replaceExisting` a failure leaves nothing behind: an existing file stays untouched, and
/// a new one that cannot be filled is removed again. With it the file may then be empty or
/// incomplete.
std::string WriteTextFile(const std::string& FileName, const std::string& text,
                          const std::string& charset, bool replaceExisting);

/// "unicode" or "utf-8" by the file's byte-order mark, "x-ansi" without one, "" when it is empty or
/// ReadTextFile would not read it.
std::string DetectCharset(const std::string& FileName);

std::string BomUnicode(); ///< the codes 255, 254
std::string BomUtf8();    ///< the codes 239, 187, 191

} // namespace tessarin
