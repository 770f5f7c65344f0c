#pragma once

#include "toolkit/Toolkit.h"

namespace tessarin::qt {

class QtPlatform;

/// Makes the controls of one form out of Qt's widgets.
class QtToolkit : public Toolkit {
public:
    explicit QtToolkit(QtPlatform& platform) : mPlatform(platform) {}

    std::unique_ptr<FormPeer> Create(Form& form) override;
    std::unique_ptr<ControlPeer> Create(Timer& timer) override;
    std::unique_ptr<ControlPeer> Create(Control& control, Kind kind) override;
    std::optional<std::string> RunFileDialog(const CommonDialog& dialog, bool saving) override;

private:
    QtPlatform& mPlatform;
};

} // namespace tessarin::qt
