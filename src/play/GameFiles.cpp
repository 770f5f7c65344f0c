// SPDX-License-Identifier: MIT
// The puzzle files of the game.
#include "play/Game.h"

#include "model/Fields.h"
#include "platform/Platform.h"
#include "play/Play.h"
#include "support/modDateTime.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

namespace tessarin {

namespace {

// Beside the program: the program's name, date and time, and the extension.
std::string DefaultFileName(const std::string& extension) {
    Platform& platform = Platform::Current();
    const std::string stamp = ReplaceAll(DateTimeStamp(platform.Now()), " ", "-");
    return platform.NativePath(
        JoinPath(platform.ProgramFolder(), platform.ProgramName() + "-" + stamp + extension));
}

// Ignores failures.
void Export(const std::string& fileName, const std::string& extension, const std::string& text) {
    const std::string target = fileName.empty() ? DefaultFileName(extension) : fileName;
    WriteTextFile(target, text, /*charset=*/"", /*replaceExisting=*/false);
}

} // namespace

void Game::FileExportCSV(const std::string& MyFileName) {
    Export(MyFileName, ".csv", Fields->TextCSV());
}

void Game::FileImportCSV(const std::string& FileName) {
    Fields->SetTextCSV(ReadTextFile(FileName));
    Play->Reset();
}

void Game::FileExportSDK(const std::string& MyFileName) {
    Export(MyFileName, ".sdk", Fields->TextSDK());
}

void Game::FileImportSDK(const std::string& FileName) {
    Fields->SetTextSDK(ReadTextFile(FileName));
}

} // namespace tessarin
