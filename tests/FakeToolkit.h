#pragma once

#include "ScriptedPlatform.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/Controls.h"
#include "toolkit/Form.h"

#include <map>

namespace tessarin {

/// A window toolkit that shows nothing. Its peers do nothing; Find looks controls up by name.
class FakeToolkit : public Toolkit {
public:
    explicit FakeToolkit(ScriptedPlatform& platform) : mPlatform(platform) {}

    std::optional<std::string> File; ///< chosen in file dialogs; nothing: they are cancelled
    bool Saving = false;             ///< the dialog shown last saves

    Control& Find(const std::string& name) { return *mControls.at(name); }

    std::unique_ptr<FormPeer> Create(Form& form) override {
        return Add(form, [this, &form] { mPlatform.Closed = form.RaiseUnload(); });
    }
    std::unique_ptr<LabelPeer> Create(Label& label) override { return Add(label); }
    std::unique_ptr<ControlPeer> Create(CommandButton& button) override { return Add(button); }
    std::unique_ptr<OptionPeer> Create(OptionButton& option) override { return Add(option); }
    std::unique_ptr<ControlPeer> Create(Frame& frame) override { return Add(frame); }
    std::unique_ptr<ControlPeer> Create(UserControl& control) override { return Add(control); }
    std::unique_ptr<ControlPeer> Create(Picture& picture) override { return Add(picture); }
    std::unique_ptr<ControlPeer> Create(Timer& timer) override { return Add(timer); }
    std::unique_ptr<ControlPeer> Create(MenuItem& item) override { return Add(item); }
    std::optional<std::string> RunFileDialog(const CommonDialog& /*dialog*/, bool saving) override {
        Saving = saving;
        return File;
    }

private:
    struct Peer : FormPeer, LabelPeer, OptionPeer {
        explicit Peer(std::function<void()> close) : OnClose(std::move(close)) {}
        void Changed(Property /*property*/) override {}
        void Close() override { OnClose(); }
        int Handle() override { return 5; }
        void MakeCurrent() override {}
        void Select() override {}
        std::function<void()> OnClose;
    };

    std::unique_ptr<Peer> Add(Control& control, std::function<void()> close = nullptr) {
        mControls[control.Name()] = &control;
        return std::make_unique<Peer>(std::move(close));
    }

    ScriptedPlatform& mPlatform;
    std::map<std::string, Control*> mControls;
};

} // namespace tessarin
