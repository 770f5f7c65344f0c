// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Toolkit.h"

namespace tessarin::qt {

class QtForm;
class QtPlatform;

/// Makes the controls of one form out of Qt's widgets.
///
/// Each widget has two owners, its control and, in Qt, its parent widget. The control is always the
/// one that deletes it: a control is declared after the one that contains it, so that it ends
/// first, and a widget that is deleted leaves its parent's list.
class QtToolkit : public Toolkit {
public:
    explicit QtToolkit(QtPlatform& platform) : mPlatform(platform) {}

    std::unique_ptr<FormPeer> Create(Form& form) override;
    std::unique_ptr<ControlPeer> Create(CommandButton& button) override;
    std::unique_ptr<ControlPeer> Create(Frame& frame) override;
    std::unique_ptr<LabelPeer> Create(Label& label) override;
    std::unique_ptr<ControlPeer> Create(MenuItem& item) override;
    std::unique_ptr<OptionPeer> Create(OptionButton& option) override;
    std::unique_ptr<ControlPeer> Create(Picture& picture) override;
    std::unique_ptr<ControlPeer> Create(Timer& timer) override;
    std::optional<std::string> RunFileDialog(const CommonDialog& dialog,
                                             FileDialogKind kind) override;

private:
    // The widget for a placed control.
    template <class Widget, class KindOfControl>
    std::unique_ptr<Widget> Make(KindOfControl& control);

    QtPlatform& mPlatform;
    QtForm* mForm = nullptr; // set by the first Create, that of the form
};

} // namespace tessarin::qt
