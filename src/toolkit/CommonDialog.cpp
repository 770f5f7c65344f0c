#include "toolkit/CommonDialog.h"

namespace tessarin {

bool CommonDialog::Show(bool saving) {
    const auto chosen = mToolkit.RunFileDialog({.Title = DialogTitle,
                                                .Filter = Filter,
                                                .DefaultExt = DefaultExt,
                                                .Saving = saving,
                                                .FileMustExist = FileMustExist,
                                                .PathMustExist = PathMustExist,
                                                .FileName = FileName});
    if (chosen) FileName = *chosen;
    return chosen.has_value();
}

} // namespace tessarin
