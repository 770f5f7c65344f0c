#include "platform/CommonDialog.h"

namespace tessarin {

void CommonDialog::Show(bool saving) {
    const auto chosen = mToolkit.RunFileDialog({.Title = DialogTitle,
                                                .Filter = Filter,
                                                .DefaultExt = DefaultExt,
                                                .Saving = saving,
                                                .FileMustExist = FileMustExist,
                                                .PathMustExist = PathMustExist,
                                                .FileName = FileName});
    if (chosen)
        FileName = *chosen;
    else if (CancelError)
        throw DialogCancelled();
}

} // namespace tessarin
