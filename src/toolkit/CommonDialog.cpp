#include "toolkit/CommonDialog.h"

namespace tessarin {

bool CommonDialog::Show(bool saving) {
    const auto chosen = mToolkit.RunFileDialog(*this, saving);
    if (chosen) FileName = *chosen;
    return chosen.has_value();
}

} // namespace tessarin
