// SPDX-License-Identifier: MIT
#include "play/modGame.h"

#include "platform/Platform.h"
#include "support/modRelease.h"
#include "support/modStringLibrary.h"

namespace tessarin {

Game* goGame = nullptr;

std::string gsAboutText;

void ShowAbout() {
    Platform& platform = Platform::Current();
    const VersionRecord version = platform.Version();
    gsAboutText.clear();
    AddAboutLine("FileDescription: " + version.FileDescription);
    AddAboutLine("Copyright: " + version.LegalNotice);
    AddAboutLine("Internet: " + version.WebAddress);
    AddAboutLine("Version: " + PadInteger(version.Major, 2, "") + "." +
                 PadInteger(version.Minor, 2, "") + "." + PadInteger(version.Revision, 3, ""));
    AddAboutLine("Release: " + ReleaseDate() + " - " + ReleaseTime());
    platform.ShowMessage({.Prompt = gsAboutText, .Title = "About " + platform.ProgramName()});
}

void AddAboutLine(const std::string& line) {
    if (!gsAboutText.empty()) gsAboutText += "\r\n";
    gsAboutText += line;
}

} // namespace tessarin
