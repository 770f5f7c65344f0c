#pragma once

#include "platform/Toolkit.h"

#include <stdexcept>

namespace tessarin {

/// How a dialog that reports its cancelling as an error does so.
struct DialogCancelled : std::runtime_error {
    DialogCancelled() : std::runtime_error("Cancel was selected.") {}
};

/// The modal dialogs to open and to save a file. One object serves both; set its properties before
/// showing it.
class CommonDialog {
public:
    explicit CommonDialog(Toolkit& toolkit) : mToolkit(toolkit) {}

    std::string DialogTitle;
    /// Pairs of description and pattern, separated by "|".
    std::string Filter;
    /// Appended to a name that is typed without extension.
    std::string DefaultExt;
    bool FileMustExist = false;
    bool PathMustExist = false;
    /// Cancelling throws DialogCancelled.
    bool CancelError = false;
    /// The full path chosen last; stays as it is when the dialog is cancelled.
    std::string FileName;

    void ShowOpen() { Show(false); }
    /// Does not ask before an existing file is chosen.
    void ShowSave() { Show(true); }

private:
    void Show(bool saving);

    Toolkit& mToolkit;
};

} // namespace tessarin
