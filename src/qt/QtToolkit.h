#pragma once

#include "toolkit/Toolkit.h"

namespace tessarin::qt {

class QtPlatform;

/// Makes the controls of one form out of Qt's widgets.
class QtToolkit : public Toolkit {
public:
    explicit QtToolkit(QtPlatform& platform) : mPlatform(platform) {}

    std::unique_ptr<FormPeer> Create(Form& form) override;
    std::unique_ptr<ControlPeer> Create(Label& label, Control& container) override;
    std::unique_ptr<ControlPeer> Create(CommandButton& button, Control& container) override;
    std::unique_ptr<ControlPeer> Create(OptionButton& option, Control& container) override;
    std::unique_ptr<ControlPeer> Create(Frame& frame, Control& container) override;
    std::unique_ptr<ControlPeer> Create(UserControl& control, Control& container) override;
    std::unique_ptr<ControlPeer> Create(Picture& picture, Control& container) override;
    std::unique_ptr<ControlPeer> Create(Timer& timer) override;
    std::unique_ptr<ControlPeer> Create(MenuItem& item, Form& form) override;
    std::unique_ptr<ControlPeer> Create(MenuItem& item, MenuItem& menu) override;
    std::optional<std::string> RunFileDialog(const FileDialogRequest& request) override;

private:
    QtPlatform& mPlatform;
};

} // namespace tessarin::qt
