// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Toolkit.h"

#include <string>

namespace tessarin {

/// The modal dialogs to open and to save a file. One object serves both; set its properties before
/// showing it.
class CommonDialog {
public:
    explicit CommonDialog(Toolkit& toolkit) : mToolkit(toolkit) {}

    std::string DialogTitle;
    /// Pairs of description and pattern, separated by "|".
    std::string Filter;
    /// Appended to a name that is typed without extension; to open a file, only if there is none
    /// with the name as typed.
    std::string DefaultExt;
    bool FileMustExist = false;
    bool PathMustExist = false;
    /// The full path chosen last, in whose folder the dialog opens; a cancelled dialog leaves it as
    /// it is.
    std::string FileName;

    /// Both return whether a file was chosen; false means cancelled.
    bool ShowOpen() { return Show(FileDialogKind::Open); }
    /// The file may exist: whether it is replaced is for the caller to ask.
    bool ShowSave() { return Show(FileDialogKind::Save); }

private:
    bool Show(FileDialogKind kind) {
        const auto chosen = mToolkit.RunFileDialog(*this, kind);
        if (chosen) FileName = *chosen;
        return chosen.has_value();
    }

    Toolkit& mToolkit;
};

} // namespace tessarin
