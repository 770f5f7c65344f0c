#pragma once

#include "toolkit/Toolkit.h"

namespace tessarin::qt {

class QtPlatform;

/// Makes the controls of one form out of Qt's widgets.
class QtToolkit : public Toolkit {
public:
    explicit QtToolkit(QtPlatform& platform) : mPlatform(platform) {}

    std::unique_ptr<FormPeer> Create(Form& form) override;
    std::unique_ptr<LabelPeer> Create(Label& label) override;
    std::unique_ptr<ControlPeer> Create(CommandButton& button) override;
    std::unique_ptr<OptionPeer> Create(OptionButton& option) override;
    std::unique_ptr<ControlPeer> Create(Frame& frame) override;
    std::unique_ptr<ControlPeer> Create(UserControl& control) override;
    std::unique_ptr<ControlPeer> Create(Picture& picture) override;
    std::unique_ptr<ControlPeer> Create(Timer& timer) override;
    std::unique_ptr<ControlPeer> Create(MenuItem& item) override;
    std::optional<std::string> RunFileDialog(const CommonDialog& dialog, bool saving) override;

private:
    template <class Widget>
    std::unique_ptr<Widget> Make(Control& control);

    QtPlatform& mPlatform;
};

} // namespace tessarin::qt
